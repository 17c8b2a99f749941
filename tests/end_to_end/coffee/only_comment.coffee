# nothing else
