[Proyecto]
Titulo=Juego
Autor=Eva
MainSource=m.prg
