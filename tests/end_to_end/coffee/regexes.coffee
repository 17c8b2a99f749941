/=x/.test y
matches = "a-b".match /^(\w)-(\w)$/
z = x / y / 2
