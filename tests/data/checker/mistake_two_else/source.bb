If a
Else
Else
EndIf
