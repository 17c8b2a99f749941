a = new Foo
b = new Foo.Bar 1, 2
c = new (factory())(3)
d = new Foo args...
e = (new Date).getTime()
