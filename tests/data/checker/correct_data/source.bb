.numeros
Data 1,-2,$FF,%101,3.5,.5
.textos
Data "uno","dos; no es un comentario","tres: cuatro"
Restore textos
Read a$,b$
Restore
Goto numeros
Gosub textos
Return
