Select a
	Case 1 : Print "uno"
	Case 2,3,b+4
		If c Then Print "x"
	Case "texto"
		Select d
			Default
		End Select
	Default
		Print "otro"
End Select
Select x : Case 1 : If a Then b=1 : Case 2 : c=1 : End Select
