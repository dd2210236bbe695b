Print "x"
End Select
