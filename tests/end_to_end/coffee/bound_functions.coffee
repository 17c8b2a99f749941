class Account
  constructor: (@owner, @log = []) ->
  watch: (source) ->
    source.on "change", (value) =>
      @log.push value
      source.once "end", => @finish =>
        @owner = null
