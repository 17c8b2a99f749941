pattern = ///
  ^ \s* (\d+)      # digits
  [ \# / ]
  (?: #{word} )+   # a word
///gi
simple = /a\/[/b]\d+/m
divided = a / b / c
