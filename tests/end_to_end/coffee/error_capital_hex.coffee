x = 0XFF
