a = {class: 1, function: 2, default: 3, if: 4}
b = a.class + a.default
c = if: then_
