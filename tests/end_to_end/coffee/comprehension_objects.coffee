inverted = {}
inverted[value] = key for key, value of dictionary
pairs = ([k, v] for k, v of o when v? and v isnt 0) if no
