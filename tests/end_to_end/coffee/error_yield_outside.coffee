yield 1
