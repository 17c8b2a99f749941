$ "#list"
  .find "li"
  .filter (i) -> i % 2
  .addClass "odd"
  .end()
