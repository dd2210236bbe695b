; Un laberinto leído de líneas Data. Hay que llegar a la casilla verde.
Const Columnas=16,Filas=10
Const Casilla=40
Const Muro=1,Meta=2

Dim mapa(Columnas,Filas)
Global jugadorX,jugadorY

Graphics Columnas*Casilla,Filas*Casilla,0,2
AppTitle "Laberinto"
SetBuffer BackBuffer()
Restore plano
LeerMapa()

While Not KeyHit(1)
	If KeyHit(203) Then Mover(-1,0)
	If KeyHit(205) Then Mover(1,0)
	If KeyHit(200) Then Mover(0,-1)
	If KeyHit(208) Then Mover(0,1)

	Cls
	DibujarMapa()
	If mapa(jugadorX,jugadorY)=Meta
		Color 255,255,255
		Text Columnas*Casilla/2,Filas*Casilla/2,"¡Has encontrado la salida!",True,True
	EndIf
	Flip
Wend
End

; Cada línea del plano es una fila: # muro, J jugador, M meta.
Function LeerMapa()
	For y=1 To Filas
		Read fila$
		For x=1 To Columnas
			Select Mid$(fila$,x,1)
				Case "#"
					mapa(x,y)=Muro
				Case "M"
					mapa(x,y)=Meta
				Case "J"
					jugadorX=x
					jugadorY=y
			End Select
		Next
	Next
End Function

; Da un paso si no hay un muro delante.
Function Mover(pasoX,pasoY)
	If mapa(jugadorX+pasoX,jugadorY+pasoY)=Muro Then Return
	jugadorX=jugadorX+pasoX
	jugadorY=jugadorY+pasoY
End Function

Function DibujarMapa()
	For y=1 To Filas
		For x=1 To Columnas
			If mapa(x,y)=Muro Then Color 90,90,140 : DibujarCasilla(x,y)
			If mapa(x,y)=Meta Then Color 0,180,0 : DibujarCasilla(x,y)
		Next
	Next
	Color 255,220,0
	px=(jugadorX-1)*Casilla
	py=(jugadorY-1)*Casilla
	Oval px+6,py+6,Casilla-12,Casilla-12
End Function

Function DibujarCasilla(x,y)
	px=(x-1)*Casilla
	py=(y-1)*Casilla
	Rect px,py,Casilla-1,Casilla-1
End Function

.plano
Data "################","#J..#.....#....#"
Data "###.#.###.#.##.#","#...#.#...#..#.#"
Data "#.###.#.####.#.#","#.....#....#.#.#"
Data "#.###.####.#.#.#","#...#....#.#.#.#"
Data "###...##.....#M#","################"
