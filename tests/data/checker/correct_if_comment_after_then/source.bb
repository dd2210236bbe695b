If a Then ; si pasa esto
	Print "x"
EndIf
If a ; si pasa esto
	Print "x"
EndIf
