healthy = 200 > cholesterol > 60
ordered = a <= b < c <= d isnt e
