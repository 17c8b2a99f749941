eval = 1
