Function f()
Field x
End Function
