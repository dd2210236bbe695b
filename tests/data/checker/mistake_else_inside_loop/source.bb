If a
While b
Else
Wend
EndIf
