plain = 'single "quotes" inside'
double = "double 'quotes' inside"
escaped = "tab\tline\nquote\" backslash\\ \u3042 \x41"
long = "one
  two
  three"
