if a
	b = 1
	if c
		d = 2
