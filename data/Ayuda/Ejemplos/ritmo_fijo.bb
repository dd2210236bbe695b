; Un ritmo fijo
; Tema: timer
; Un temporizador hace que el juego dé los mismos pasos por segundo en cualquier equipo.

Graphics 640,480,0,2
AppTitle "Ritmo fijo"
SetBuffer BackBuffer()

; El temporizador late 50 veces por segundo.
Const Ritmo=50
temporizador=CreateTimer(Ritmo)

x#=0
velocidad#=3
pasos=0

While Not KeyHit(1)
	; WaitTimer espera al próximo latido y dice cuántos ha habido desde el último:
	; más de uno, si la vuelta anterior tardó demasiado.
	latidos=WaitTimer(temporizador)

	; Se dan todos los pasos que tocan, y solo después se dibuja una vez.
	For paso=1 To latidos
		x#=x#+velocidad#
		If x#<0 Or x#>600 Then velocidad#=-velocidad#
		pasos=pasos+1
	Next

	Cls
	Color 255,160,0
	Oval x#,220,40,40
	Color 255,255,255
	Text 10,10,"Pasos: "+pasos+"   Segundos: "+pasos/Ritmo
	Text 10,450,"Escape para salir"
	; Con 0, Flip no espera: del ritmo ya se ocupa el temporizador.
	Flip 0
Wend

FreeTimer temporizador
End
