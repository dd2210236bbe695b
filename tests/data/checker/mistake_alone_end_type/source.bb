Print "x"
End Type
