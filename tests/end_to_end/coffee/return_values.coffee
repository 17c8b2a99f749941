f = ->
  return
g = ->
  return a: 1
h = (x) ->
  if x then return 1
  else 2
k = -> return [1, 2] unless l
