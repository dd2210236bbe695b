Print "hola ; mundo
