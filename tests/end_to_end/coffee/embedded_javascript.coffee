hi = `function() {
  return [document.title, "Hello"].join(": ");
}`
x = `a /* comment */ + b`
`var raw = 1;`
