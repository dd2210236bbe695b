While a
If b
For i=1 To 3
