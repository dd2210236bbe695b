; Una caja que se mueve con las flechas del teclado. Escape termina.
Const Ancho=640,Alto=480
Const Lado=40
Const Velocidad=4

; Códigos de las teclas
Const TeclaEscape=1
Const TeclaArriba=200,TeclaAbajo=208
Const TeclaIzquierda=203,TeclaDerecha=205

Graphics Ancho,Alto,0,2
AppTitle "Mover la caja"

; Se dibuja en la página oculta y Flip la enseña: así la imagen no parpadea.
SetBuffer BackBuffer()

x=(Ancho-Lado)/2
y=(Alto-Lado)/2

While Not KeyHit(TeclaEscape)
	If KeyDown(TeclaIzquierda) Then x=x-Velocidad
	If KeyDown(TeclaDerecha) Then x=x+Velocidad
	If KeyDown(TeclaArriba) Then y=y-Velocidad
	If KeyDown(TeclaAbajo) Then y=y+Velocidad

	; La caja no sale de la pantalla.
	x=Limitado(x,Ancho-Lado)
	y=Limitado(y,Alto-Lado)

	Cls
	Color 255,200,0
	Rect x,y,Lado,Lado
	Color 255,255,255
	Text Ancho/2,10,"Mueve la caja con las flechas",True
	Flip
Wend
End

; El valor más cercano entre cero y el máximo
Function Limitado(valor,maximo)
	If valor<0 Then Return 0
	If valor>maximo Then Return maximo
	Return valor
End Function
