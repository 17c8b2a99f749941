{name, address: {city, zip: [area, number]}} = person
[a, [b, c = 5], ...] = nested
{x, y = x * 2} = point
move = ({dx, dy}, [speed]) -> dx * speed + dy
{@width, @height} = size
[first, ..., last] = text.split " "
