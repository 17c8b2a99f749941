configure
  size: 10
  colour: "red"
  , "second"
draw a: 1, b: 2, (done) ->
  done null
$.ajax "/", success: (data) -> data
