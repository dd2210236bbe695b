Type t
If a
EndIf
End Type
