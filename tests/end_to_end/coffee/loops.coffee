i = 0
while i < 10
  i += 1
  continue if i is 3
  break unless i < 8
until done()
  step()
loop
  break if random() > 0.9
results = while n-- then n * 2
