f g h i
f (1 + 2) * 3
f(1) + 2
x.y z, -> 1
a b, c
  .d e
  .f()
