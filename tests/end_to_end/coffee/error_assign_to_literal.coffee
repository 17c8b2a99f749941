"text" = 5
