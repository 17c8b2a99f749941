function = 3
