Include "otro.bb"
Global a=1,b#=2.5
Local c$="x",p.Jugador=New Jugador
Const Ancho=640,Alto=480
Dim mapa(10,10),nombre$(5)
Local lista[20]
Insert p Before First Jugador
Insert p After q
Delete p
