s = tag"hello #{name} and #{1 + 2}"
r = String.raw"a\nb"
