If a=1
	Print "uno"
ElseIf a=2 Then
	Print "dos"
Else If a=3
	Print "tres"
Else
	Print "otro"
EndIf
