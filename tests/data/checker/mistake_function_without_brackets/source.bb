Function f
End Function
