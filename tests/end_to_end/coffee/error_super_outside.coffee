super 1
