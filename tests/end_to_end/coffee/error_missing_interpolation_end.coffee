a = "one #{two"
