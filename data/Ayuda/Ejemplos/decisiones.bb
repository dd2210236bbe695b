; Decidir con If y Select
; Tema: flow
; Adivina un número: If compara y Select elige entre varias respuestas.

SeedRnd MilliSecs()
secreto=Rand(1,10)
intentos=0

Print "He pensado un número del 1 al 10."

Repeat
	respuesta=Int(Input$("¿Cuál es? "))
	intentos=intentos+1

	; Se hace solo la primera parte cuya condición se cumple.
	If respuesta<1 Or respuesta>10
		Print "Ese número no está entre 1 y 10."
	ElseIf respuesta<secreto
		Print "Es más grande."
	ElseIf respuesta>secreto
		Print "Es más pequeño."
	Else
		Print "¡Ese es!"
	EndIf
Until respuesta=secreto

; Select compara un mismo valor con varios casos.
Select intentos
	Case 1
		Print "¡A la primera! Eso es suerte."
	Case 2,3,4
		Print intentos+" intentos: muy bien."
	Default
		Print intentos+" intentos. Prueba siempre por la mitad de lo que queda."
End Select

; Un If de una sola línea lleva Then y no necesita EndIf.
If intentos>10 Then Print "Algún número lo has dicho dos veces."

WaitKey()
End
