For i=1 To 3
If a Then Exit : Next
