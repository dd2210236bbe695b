[Proyecto]
Titulo=Preguntas y respuestas
Autor=El equipo de Quillbox
MainSource=examples/proyecto_preguntas/Main.prg
OtrosSource=examples/proyecto_preguntas/Preguntas.bb
ToDoList=Leer las preguntas de líneas Data|1|Escribir más preguntas|0|Guardar la mejor puntuación en un archivo|0
