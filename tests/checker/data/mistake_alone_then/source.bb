Print "x"
Then
