square = (x) -> x * x
cube = (x) -> square(x) * x
greet = (who = "world", punctuation = "!") ->
  "Hello, #{who}#{punctuation}"
do (x = 3) -> console.log x
nothing = ->
later = (ms, then_) -> setTimeout then_, ms
later 100, -> greet()
