mode = 0777
