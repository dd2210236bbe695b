If a And
EndIf
