Type
End Type
