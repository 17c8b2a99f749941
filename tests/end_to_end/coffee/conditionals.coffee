if a then b else c
mood = if sunny
  "bright"
else if rainy and not windy
  "grey"
else
  "wild"
unless quiet
  shout()
x = y if z
