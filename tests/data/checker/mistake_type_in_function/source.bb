Function f()
Type t
End Type
End Function
