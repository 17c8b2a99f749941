a = 1
### never */ in it ###
