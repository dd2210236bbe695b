; El ordenador piensa un número y hay que adivinarlo.
AppTitle "Adivina el número"
SeedRnd MilliSecs()

Const Maximo=100

Repeat
	Jugar()
	respuesta$=Lower$(Input$("¿Otra partida? (s/n) "))
	Print
Until Left$(respuesta$,1)<>"s"

Print "¡Hasta pronto!"
Delay 1000
End

; Una partida completa
Function Jugar()
	secreto=Rand(1,Maximo)
	intentos=0
	Print "He pensado un número del 1 al "+Maximo+"."

	Repeat
		intento=Int(Input$("¿Cuál es? "))
		intentos=intentos+1
		If intento<1 Or intento>Maximo
			Print "Tiene que estar entre 1 y "+Maximo+"."
		ElseIf intento<secreto
			Print "Es mayor."
		ElseIf intento>secreto
			Print "Es menor."
		Else
			Exit
		EndIf
	Forever

	Print "¡Acertaste en "+intentos+" intentos!"
	If intentos<=7 Then Print "Muy bien jugado." Else Print "La próxima vez irá mejor."
	Print
End Function
