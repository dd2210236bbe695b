[Otro]
Titulo=No es este
