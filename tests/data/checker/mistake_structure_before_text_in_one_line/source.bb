Next "x
