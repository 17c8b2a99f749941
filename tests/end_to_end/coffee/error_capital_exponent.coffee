a = 1
b = 1E3
