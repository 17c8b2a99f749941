for file in files
  do (file) ->
    read file, (text) -> contents[file] = text
handlers = for i in [0..3]
  do (i) -> -> i
