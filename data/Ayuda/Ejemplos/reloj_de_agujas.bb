; Un reloj con senos y cosenos
; Tema: math
; Usa Sin y Cos para colocar las marcas y las agujas de un reloj que marca la hora.

Graphics 480,480,0,2
AppTitle "Reloj"
SetBuffer BackBuffer()
; Así el centro de la pantalla es el punto 0,0.
Origin 240,240

While Not KeyHit(1)
	Cls
	; Las doce marcas están a 30 grados una de otra.
	Color 255,255,255
	For hora=1 To 12
		x=Sin(hora*30)*200
		y=-Cos(hora*30)*200
		Text x,y,hora,True,True
	Next

	; CurrentTime es un texto como "18:05:30".
	ahora$=CurrentTime$()
	horas=Int(Left$(ahora$,2))
	minutos=Int(Mid$(ahora$,4,2))
	segundos=Int(Right$(ahora$,2))

	Aguja((horas Mod 12)*30+minutos/2.0,110)
	Aguja(minutos*6,160)
	Color 255,80,80
	Aguja(segundos*6,180)

	Text -230,220,"Escape para salir"
	Flip
Wend
End

; Los grados se cuentan desde las doce y en el sentido del reloj. En la pantalla
; la y crece hacia abajo: por eso el coseno va con signo menos.
Function Aguja(grados#,largo)
	Line 0,0,Sin(grados#)*largo,-Cos(grados#)*largo
End Function
