[Proyecto]
Titulo="  Juego  "
Autor='Eva'
MainSource="a b.prg"
