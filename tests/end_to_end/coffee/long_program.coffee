class Queue
  constructor: (@limit = Infinity) ->
    @items = []
    @waiting = []

  push: (item) ->
    throw new RangeError "full" if @items.length >= @limit
    if (taker = @waiting.shift())?
      taker item
    else
      @items.push item
    this

  take: (callback) ->
    if @items.length
      callback @items.shift()
    else
      @waiting.push callback
    return

  drain: (callback) ->
    callback item while (item = @items.shift())?
    @

jobs = new Queue 10
for name, priority of {low: 1, middle: 5, high: 9} when priority > 1
  jobs.push {name, priority}
jobs.drain ({name, priority}) ->
  console.log "#{name}: #{"*" for [0...priority]}"
