value =
  if a
    if b then 1 else 2
  else unless c
    3
  else
    4
