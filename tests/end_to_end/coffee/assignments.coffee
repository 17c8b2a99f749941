width = 320
height = 2 * width - 1
[left, right] = [right, left]
area = width * height unless width is 0
count = 7
count += 1
width or= 1
