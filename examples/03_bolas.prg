; Bolas que rebotan. Cada bola es un objeto de un tipo propio.
; El botón izquierdo del ratón añade una bola, el derecho las borra todas.
Const Ancho=640,Alto=480

Type Bola
	Field x#,y#
	Field vx#,vy#
	Field radio
	Field rojo,verde,azul
End Type

Graphics Ancho,Alto,0,2
AppTitle "Bolas"
SetBuffer BackBuffer()
SeedRnd MilliSecs()

For i=1 To 12
	CrearBola(Rnd(Ancho),Rnd(Alto))
Next

While Not KeyHit(1)
	If MouseHit(1) Then CrearBola(MouseX(),MouseY())
	If MouseHit(2) Then Delete Each Bola

	Cls
	cuantas=0
	For b.Bola=Each Bola
		MoverBola(b)
		DibujarBola(b)
		cuantas=cuantas+1
	Next
	Color 255,255,255
	Text 10,10,"Bolas: "+cuantas
	Flip
Wend
End

Function CrearBola.Bola(x#,y#)
	b.Bola=New Bola
	b\radio=Rand(8,24)
	b\x=x
	b\y=y
	b\vx=Rnd(-4,4)
	b\vy=Rnd(-4,4)
	b\rojo=Rand(80,255)
	b\verde=Rand(80,255)
	b\azul=Rand(80,255)
	Return b
End Function

Function MoverBola(b.Bola)
	b\x=b\x+b\vx
	b\y=b\y+b\vy
	; En cada borde, la velocidad vuelve a señalar hacia dentro.
	If b\x<b\radio Then b\vx=Abs(b\vx)
	If b\x>Ancho-b\radio Then b\vx=-Abs(b\vx)
	If b\y<b\radio Then b\vy=Abs(b\vy)
	If b\y>Alto-b\radio Then b\vy=-Abs(b\vy)
End Function

Function DibujarBola(b.Bola)
	Color b\rojo,b\verde,b\azul
	Oval b\x-b\radio,b\y-b\radio,b\radio*2,b\radio*2
End Function
