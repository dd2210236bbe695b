Print "x"
Else If a
