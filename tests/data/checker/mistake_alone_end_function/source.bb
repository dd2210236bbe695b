Print "x"
End Function
