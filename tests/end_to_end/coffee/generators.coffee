fibonacci = ->
  [a, b] = [0, 1]
  loop
    yield a
    [a, b] = [b, a + b]
delegate = ->
  result = yield from fibonacci()
  yield return result
