If a Then Print "x"
EndIf
