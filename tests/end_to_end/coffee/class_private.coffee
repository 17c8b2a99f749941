class Counter
  total = 0
  step = (n) -> total += n
  next: (n = 1) -> step n
  @::reset = -> total = 0
  "quoted name": -> 1
