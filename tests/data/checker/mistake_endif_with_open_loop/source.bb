If a
For i=1 To 3
EndIf
Next
