point = x: 1, y: 2
shape =
  kind: "circle"
  centre:
    x: 0
    y: 0
  "quoted key": yes
  42: "number"
short = {point, shape, @owner}
computed = {"#{key}": 1, a: {b: {}}}
