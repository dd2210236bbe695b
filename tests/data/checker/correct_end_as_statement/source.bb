If KeyHit(1) Then End
If KeyHit(1) Then End Else Print "x"
If KeyHit(1)
	End
EndIf
End ; se acabó
End : If a Then End
End
