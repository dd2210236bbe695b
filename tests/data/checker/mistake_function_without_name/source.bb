Function
End Function
