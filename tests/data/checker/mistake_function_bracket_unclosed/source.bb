Function f(a,b
End Function
