r = /// a b c
