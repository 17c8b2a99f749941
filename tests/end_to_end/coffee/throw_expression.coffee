f = (x) -> throw new TypeError "bad #{x}" unless x?
g = x or throw "never"
