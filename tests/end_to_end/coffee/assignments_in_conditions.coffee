if (m = re.exec s)?
  m[1]
while (line = next())
  use line
