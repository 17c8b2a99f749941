race = (winner, runners...) ->
  print winner, runners
middle = (first, rest..., last) -> rest.concat first, last
race ["a", "b"]..., "c"
list = [1, others..., 9]
[head, tail..., end] = list
