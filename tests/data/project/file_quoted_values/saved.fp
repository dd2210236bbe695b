[Proyecto]
Titulo=Título nuevo
Autor=Eva
MainSource=a b.prg
OtrosSource=
ToDoList=
