[Proyecto]
Titulo=Título nuevo
Autor=Eva
MainSource=m.prg
OtrosSource=
ToDoList=
