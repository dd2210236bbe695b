If a
Function b()
End Function
EndIf