; Teclado y ratón
; Tema: input
; Mueve un pincel con las flechas o con el ratón y pinta con sus botones.

Graphics 640,480,0,2
AppTitle "Teclado y ratón"

; Cada tecla tiene un código según su lugar en el teclado.
Const Escape=1,Espacio=57
Const Arriba=200,Izquierda=203,Derecha=205,Abajo=208

; Se pinta en una imagen, para que el pincel no deje rastro al moverse.
lienzo=CreateImage(640,480)
x=320 : y=240 : grueso=20
HidePointer

While Not KeyHit(Escape)
	; KeyDown dice si la tecla está pulsada en este momento.
	If KeyDown(Arriba) Then y=y-3
	If KeyDown(Abajo) Then y=y+3
	If KeyDown(Izquierda) Then x=x-3
	If KeyDown(Derecha) Then x=x+3

	; Si el ratón se ha movido, el pincel va con él.
	If MouseXSpeed()<>0 Or MouseYSpeed()<>0
		x=MouseX()
		y=MouseY()
	EndIf

	; La rueda cambia el grueso del pincel.
	grueso=grueso+MouseZSpeed()*4
	If grueso<4 Then grueso=4

	SetBuffer ImageBuffer(lienzo)
	; KeyHit cuenta cada pulsación una sola vez, aunque la tecla siga abajo.
	If KeyHit(Espacio) Then Cls
	Color 255,120,0
	If MouseDown(1) Then Oval x-grueso/2,y-grueso/2,grueso,grueso
	Color 0,160,255
	If MouseDown(2) Then Rect x-grueso/2,y-grueso/2,grueso,grueso

	SetBuffer BackBuffer()
	DrawBlock lienzo,0,0
	Color 255,255,255
	Oval x-grueso/2,y-grueso/2,grueso,grueso,False
	Text 10,5,"Botones: pintar   Rueda: grueso   Espacio: borrar   Escape: salir"
	Flip
Wend
ShowPointer
End
