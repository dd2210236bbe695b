Select
End Select
