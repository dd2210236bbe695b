process
process 
process()
process  con_dos_blancos()
process	con_tabulador()
process Ñandú_veloz(x)
process con.punto(x)
process sin_parentesis // nota (1)
process repetido()
process repetido()
type
type 
type  Blanco
TYPE año 
type Punto.x(1) // nota
