Print "x"
To
