[Proyecto]
Titulo=Título nuevo
Autor=
MainSource=
OtrosSource=
ToDoList=
