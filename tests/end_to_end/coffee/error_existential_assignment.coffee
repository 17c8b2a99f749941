f = ->
  undeclared ?= 1
