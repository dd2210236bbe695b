a$ = "// nada" + "/* nada" /* aquí
sigue "todo */ Print a // fin
/* sin cerrar "