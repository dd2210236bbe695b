Type t
Field x
Print "x"
End Type
