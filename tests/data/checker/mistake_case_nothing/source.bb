Select a
Case
End Select
