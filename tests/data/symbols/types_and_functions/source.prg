; Nave con enemigos
Type Enemigo
    Field x#, y#
    Field vida
End Type

Type Bala ; sale de la nave
    Field x#, y#
End Type

Global puntos = 0
Graphics 640, 480

Function NuevoEnemigo.Enemigo(x#)
    e.Enemigo = New Enemigo
    e\x = x
    Return e
End Function

.inicio
Goto inicio
