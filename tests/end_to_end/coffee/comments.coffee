# one line, not in the output
a = 1 # behind
###
A block that stays,
  with its indentation
###
b = 2
