values = (v for v from generator())
for [key, value] from map
  console.log key, value
