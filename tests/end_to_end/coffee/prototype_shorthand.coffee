String::shout = -> @toUpperCase() + "!"
Array::last = -> @[@length - 1]
Foo::bar::baz = 1
Foo:: 
