If vidas=0
	Print "Fin"
EndIf
If vidas=0 Then
	Print "Fin"
End If
