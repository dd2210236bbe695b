If a Then Function b()
End Function
