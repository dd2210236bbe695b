If
EndIf
