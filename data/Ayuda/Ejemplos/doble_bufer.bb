; Animación sin parpadeos
; Tema: graphics
; Dibuja pelotas que rebotan en el búfer oculto y las muestra de una vez con Flip.

Const Ancho=640,Alto=480,Lado=30

Type Pelota
	Field x#,y#
	Field vx#,vy#
	Field rojo,verde,azul
End Type

Graphics Ancho,Alto,0,2
AppTitle "Doble búfer"
; Desde aquí se dibuja donde no se ve; Flip lo muestra.
SetBuffer BackBuffer()
ClsColor 10,20,50

For i=1 To 20
	p.Pelota=New Pelota
	p\x=Rand(0,Ancho-Lado) : p\y=Rand(0,Alto-Lado)
	p\vx=Rnd#(-4,4) : p\vy=Rnd#(-4,4)
	p\rojo=Rand(80,255) : p\verde=Rand(80,255) : p\azul=Rand(80,255)
Next

While Not KeyHit(1)
	; 1. Borrar lo anterior. 2. Mover y dibujar todo. 3. Mostrarlo.
	Cls
	For p=Each Pelota
		p\x=p\x+p\vx
		p\y=p\y+p\vy
		If p\x<0 Or p\x>Ancho-Lado Then p\vx=-p\vx
		If p\y<0 Or p\y>Alto-Lado Then p\vy=-p\vy
		Color p\rojo,p\verde,p\azul
		Oval p\x,p\y,Lado,Lado
	Next
	Color 255,255,255
	Text 10,10,"Escape para salir"
	Flip
Wend
End
