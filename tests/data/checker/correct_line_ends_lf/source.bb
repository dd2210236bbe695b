If a
Print "x"
EndIf
