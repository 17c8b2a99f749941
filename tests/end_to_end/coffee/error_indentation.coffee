if a
  b = 1
    c
 d
