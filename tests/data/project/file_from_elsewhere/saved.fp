; hecho a mano

[Ventanas]
Titulo=otro

[PROYECTO]
; los datos
ToDoList=una|0
titulo=Título nuevo
Version=3
MainSource=m.prg
Autor=Autor desconocido
OtrosSource=

[Final]
x=1