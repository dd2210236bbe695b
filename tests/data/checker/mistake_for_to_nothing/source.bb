For i=1 To
Next
