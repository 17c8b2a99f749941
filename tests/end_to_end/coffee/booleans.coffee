a = yes
b = no
c = on
d = off
e = true and false or undefined and null
