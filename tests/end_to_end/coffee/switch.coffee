kind = switch
  when score < 60 then "low"
  when score < 80 then "middle"
  else "high"
switch day
  when "sat", "sun"
    rest()
  when "fri" then half()
  else
    work()
