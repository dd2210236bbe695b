Function a()
Function b()
End Function
