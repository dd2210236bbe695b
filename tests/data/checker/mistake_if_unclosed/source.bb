Print "x"
If a
	Print "y"
