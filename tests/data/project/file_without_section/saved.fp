[Otro]
Titulo=No es este
[Proyecto]
Titulo=Título nuevo
Autor=Autor desconocido
MainSource=Main.bb
OtrosSource=
ToDoList=
