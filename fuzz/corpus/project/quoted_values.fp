[Proyecto]
Titulo="'doble'"
Autor=" con blancos "
ToDoList="a|1"
