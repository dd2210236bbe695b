If a
Else
ElseIf b
EndIf
