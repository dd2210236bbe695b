For i=1
Next
