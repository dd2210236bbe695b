Print "x"
Forever
