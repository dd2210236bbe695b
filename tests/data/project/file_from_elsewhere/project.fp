; hecho a mano

[Ventanas]
Titulo=otro

[PROYECTO]
; los datos
ToDoList=una|0
titulo = Viejo 
Version=3
MainSource=m.prg

[Final]
x=1