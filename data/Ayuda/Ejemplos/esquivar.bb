; Un juego completo: Esquiva
; Tema: graphics
; Un juego pequeño y entero, con inicio, partida, choques, puntos y final.
Const Ancho=640,Alto=480
Global jugador#,puntos,mejor
Type Roca
	Field x#,y#,lado,velocidad#
End Type

Graphics Ancho,Alto,0,2 : AppTitle "Esquiva"
SetBuffer BackBuffer() : SeedRnd MilliSecs()
; Cada vuelta es una partida; Escape en el inicio termina el programa.
While Inicio()
	Delete Each Roca
	jugador#=Ancho/2
	puntos=0
	While Partida()
	Wend
	If puntos>mejor Then mejor=puntos
Wend
End

Function Inicio()
	FlushKeys
	Repeat
		Cls
		Text Ancho/2,200,"Puntos: "+puntos+"   Mejor: "+mejor,True
		Text Ancho/2,240,"Flechas: mover   Espacio: jugar   Escape: salir",True
		Flip
		If KeyHit(57) Then Return True
	Until KeyHit(1)
	Return False
End Function

; Un paso de la partida; da False cuando una roca alcanza al jugador.
Function Partida()
	If KeyDown(203) And jugador#>0 Then jugador#=jugador#-5
	If KeyDown(205) And jugador#<Ancho-30 Then jugador#=jugador#+5
	If Rand(1,15)=1 Then NuevaRoca()
	sigue=True
	Cls
	For r.Roca=Each Roca
		r\y=r\y+r\velocidad
		Oval r\x,r\y,r\lado,r\lado
		If RectsOverlap(r\x,r\y,r\lado,r\lado,jugador#,440,30,30) Then sigue=False
		If r\y>Alto Then puntos=puntos+1 : Delete r
	Next
	Rect jugador#,440,30,30
	Text 10,10,"Puntos: "+puntos
	Flip
	Return sigue
End Function

; Cuantos más puntos, más deprisa caen las rocas.
Function NuevaRoca()
	r.Roca=New Roca
	r\lado=Rand(15,50)
	r\x=Rand(0,Ancho-r\lado) : r\y=-r\lado
	r\velocidad=Rnd#(2,4)+puntos/20.0
End Function
