call(
  first
  second, third
  ->
    inner()
)
