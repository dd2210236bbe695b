Print "x"
End If
