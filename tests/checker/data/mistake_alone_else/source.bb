Print "x"
Else
