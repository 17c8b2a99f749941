sum = a +
  b -
  c
text = "a" +
  "b"
long = first and
  second or
  third
