a = 1
else
  b = 2
