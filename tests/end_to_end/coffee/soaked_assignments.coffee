a.b ?= c
a[b] or= c
a?.b = 1
a.b?.c += 2
x = y ? z
