log x for x in list when x
i++ while i < 5
go() until stopped
a = (b if c) ? d
throw e unless f
