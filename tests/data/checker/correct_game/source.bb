; Un programa completo con casi todo
Graphics 640,480
SetBuffer BackBuffer()
Type Nave
	Field x#,y#
End Type
Global puntos
For i=1 To 5
	n.Nave=New Nave
	n\x=Rnd(640) : n\y=Rnd(480)
Next
While Not KeyHit(1)
	Cls
	For n.Nave=Each Nave
		Mover(n)
		If n\x>640 Then Delete n Else Rect n\x,n\y,4,4
	Next
	Select puntos
		Case 0
			Text 0,0,"Nada"
		Default
			If puntos>9 Text 0,0,"Bien" Else Text 0,0,"Mal"
	End Select
	Flip
Wend
End

Function Mover(n.Nave)
	n\x=n\x+1
	If n\y<0
		n\y=0
	ElseIf n\y>480
		n\y=480
	EndIf
End Function
