If a Then
	Print "y"
