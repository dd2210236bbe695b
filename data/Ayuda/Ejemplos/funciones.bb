; Funciones propias
; Tema: declaration
; Define funciones con parámetros, valores por defecto, resultado y variables locales.

; Una variable Global también se ve dentro de las funciones.
Global llamadas=0

Saludar("Marta")
Saludar("Leo",3)

Print "El mayor de 12 y 7 es "+Mayor(12,7)+"."
Print "Media de 4 y 7: "+Media#(4,7)
Print "Iniciales: "+Iniciales$("Luis","Gil")
Print "5! es "+Factorial(5)+"."
Print "Se ha llamado "+llamadas+" veces a Factorial."

WaitKey()
End

; Quien llama puede omitir veces, que entonces vale 1.
Function Saludar(nombre$,veces=1)
	For i=1 To veces
		Print "¡Hola, "+nombre$+"!"
	Next
End Function

; Return termina la función y da su resultado.
Function Mayor(a,b)
	If a>b Then Return a
	Return b
End Function

; La marca del nombre dice de qué tipo es el resultado.
Function Media#(a#,b#)
	Return (a#+b#)/2
End Function

Function Iniciales$(nombre$,apellido$)
	; Esta variable solo existe aquí dentro.
	Local letras$=Left$(nombre$,1)+Left$(apellido$,1)
	Return Upper$(letras$)
End Function

; Una función puede llamarse a sí misma.
Function Factorial(n)
	llamadas=llamadas+1
	If n<2 Then Return 1
	Return n*Factorial(n-1)
End Function
