squares = (n * n for n in [1..10] when n % 2)
names = (key for own key, value of table)
for item, index in list by 2
  console.log index, item
grid = ((x + y for x in [0...3]) for y in [0...3])
evens = (x for x in [10..0] by -2)
