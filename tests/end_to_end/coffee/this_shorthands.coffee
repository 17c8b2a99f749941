@x = 1
@y.z @w
@[key] = @::proto
f = -> @
g = => @value
