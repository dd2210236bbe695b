Print "x"
EndIf
