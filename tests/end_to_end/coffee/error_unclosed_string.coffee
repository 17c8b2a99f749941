text = "never closed
