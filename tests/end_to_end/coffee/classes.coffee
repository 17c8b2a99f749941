class Shape
  @count: 0
  @make: (args...) -> new this args...
  constructor: (@name) ->
    Shape.count += 1
  area: -> 0
  toString: -> "#{@name}: #{@area()}"
class Square extends Shape
  constructor: (side) ->
    super "square"
    @side = side
  area: ->
    super() + @side ** 2
