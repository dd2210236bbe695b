Select a
Case 1
If b
Case 2
End Select
