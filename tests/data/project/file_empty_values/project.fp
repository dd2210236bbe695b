[Proyecto]
Titulo=
Autor=
MainSource=
OtrosSource=
ToDoList=
