a?.b?.c()
value = settings?.font?.size ? 12
call?()
object.method?(1, 2)
list?[0]
exists = window? and document?
delete a?.b
