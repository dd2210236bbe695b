If a Then If b Then
	Print "dentro"
EndIf
Print "fuera"
If a Then Print "1" : If b
	Print "2"
Else
	Print "3"
EndIf : Print "4"
