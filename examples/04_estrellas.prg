; Un viaje entre las estrellas. Las flechas cambian la velocidad.
Const Ancho=640,Alto=480
Const Cantidad=400
Const Fondo=1000

; Posición de cada estrella: z es la distancia hasta nosotros.
Dim x#(Cantidad),y#(Cantidad),z#(Cantidad)

Graphics Ancho,Alto,0,2
AppTitle "Estrellas"
SetBuffer BackBuffer()
SeedRnd MilliSecs()

For i=1 To Cantidad
	NuevaEstrella(i)
	z#(i)=Rnd(1,Fondo)
Next

velocidad#=6
Repeat
	If KeyDown(200) Then velocidad=velocidad+.2
	If KeyDown(208) And velocidad>1 Then velocidad=velocidad-.2

	Cls
	For i=1 To Cantidad
		z#(i)=z#(i)-velocidad
		If z#(i)<1 Then NuevaEstrella(i)

		; Cuanto más cerca, más lejos del centro, más grande y más clara.
		px=Ancho/2+x#(i)*200/z#(i)
		py=Alto/2+y#(i)*200/z#(i)
		brillo=255-z#(i)*255/Fondo
		lado=1+brillo/100
		Color brillo,brillo,brillo
		Rect px,py,lado,lado
	Next

	Color 120,160,255
	Text 10,10,"Velocidad: "+Int(velocidad)
	Flip
Until KeyHit(1)
End

; Pone la estrella al fondo, en un lugar cualquiera.
Function NuevaEstrella(i)
	x#(i)=Rnd(-Ancho,Ancho)
	y#(i)=Rnd(-Alto,Alto)
	z#(i)=Fondo
End Function
