[Proyecto]
Titulo=El cañón
Autor=Eva Núñez
MainSource=C:\Juegos\m.prg
OtrosSource=a.bb|b.bb
ToDoList=una|1|otra|0
