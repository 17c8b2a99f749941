delete a.b
delete a[b]
typeof a.b
-> undefined
