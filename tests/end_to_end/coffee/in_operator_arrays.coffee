yes_ = x in [a, b, "c"]
no_ = (f()) not in list
if key of object and value in [] then 1
