; El mando de juego
; Tema: input
; Enseña cómo están la palanca y los botones de un mando, si hay alguno conectado.

Graphics 640,480,0,2
AppTitle "Mando"

; JoyType dice qué hay en el primer puerto: 0 es nada.
If JoyType()=0
	Print "No hay ningún mando conectado."
	Print "Conéctalo y vuelve a ejecutar el programa."
	WaitKey()
	End
EndIf

SetBuffer BackBuffer()
While Not KeyHit(1)
	Cls
	; Los ejes van de -1 a 1; en el centro valen casi 0.
	Color 80,80,80
	Rect 220,140,200,200,False
	Color 255,200,0
	Oval 310+JoyX#()*100,230+JoyY#()*100,20,20

	; Para un menú basta con la dirección: -1, 0 o 1.
	Color 255,255,255
	Text 10,10,"Dirección: "+JoyXDir()+", "+JoyYDir()

	; JoyHat da el ángulo de la cruceta, o -1 si está suelta.
	If JoyHat()<>-1 Then Text 10,30,"Cruceta: "+JoyHat()+" grados"

	; Un cuadro por cada botón, relleno mientras se pulsa.
	For boton=1 To 10
		Rect 20+boton*50,380,40,40,JoyDown(boton)
		Text 40+boton*50,430,boton,True
	Next
	Flip
Wend
End
