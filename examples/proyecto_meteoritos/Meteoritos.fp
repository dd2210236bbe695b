[Proyecto]
Titulo=Lluvia de meteoritos
Autor=El equipo de Quillbox
MainSource=examples/proyecto_meteoritos/Main.prg
OtrosSource=examples/proyecto_meteoritos/Nave.bb|examples/proyecto_meteoritos/Meteoritos.bb
ToDoList=Mover la nave con el teclado|1|Hacer caer los meteoritos|1|Contar los puntos|0|Añadir música y explosiones|0
