style =
  "font-size": "12px"
  'line-height': 1.5
  "#{vendor}-transform": "none"
