outer = 1
f = (outer) -> outer = 2
g = -> outer = 3
h = (arguments_...) -> arguments
