(-> @global = this)()
((a, b) -> a + b) 1, 2
do -> 1
do => 2
