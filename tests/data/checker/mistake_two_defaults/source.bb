Select a
Default
Default
End Select
