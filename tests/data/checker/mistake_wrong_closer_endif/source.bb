; x
For i=1 To 3
	Flip
EndIf
