Print "x"
Print "hola
Print "y"
