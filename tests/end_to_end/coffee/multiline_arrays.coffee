matrix = [
  1, 0, 0
  0, 1, 0
  0, 0, 1
]
mixed = [
  a: 1
  b: 2
,
  c: 3
]
