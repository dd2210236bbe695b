Print "x"
Default
