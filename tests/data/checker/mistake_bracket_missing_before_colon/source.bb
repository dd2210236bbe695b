Print (a+b : Print c)
