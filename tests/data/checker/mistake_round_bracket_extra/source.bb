Print a)
