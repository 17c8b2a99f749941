class Walker
  each: ->
    for item in @items
      yield item
    return
