class A
  @b: => @c
  constructor: => 1
  constructor: -> 2
