[Proyecto]
Titulo=El cañón
Autor=Eva Núñez
MainSource=C:\juegos\cañón.bb
OtrosSource=a.bb|media\b.bb
ToDoList=Dibujar la nave|1|Sonidos|0
