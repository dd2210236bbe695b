If a : Print "y"
