; Repetir con bucles
; Tema: flow
; Compara los bucles For, While y Repeat, y enseña a salir de uno con Exit.

; For cuenta él solo; Step dice de cuánto en cuánto.
Print "Una cuenta atrás:"
For segundo=10 To 0 Step -2
	Write segundo+" "
Next
Print

; Un bucle puede ir dentro de otro: por cada fila se recorren sus columnas.
Print "Un triángulo:"
For fila=1 To 4
	For columna=1 To fila
		Write "*"
	Next
	Print
Next

; While mira la condición antes de cada vuelta: puede no dar ninguna.
potencia=1
While potencia<100
	potencia=potencia*2
Wend
Print "La primera potencia de 2 que llega a 100 es "+potencia+"."

; Repeat mira la condición al final: da al menos una vuelta.
tiradas=0
Repeat
	tiradas=tiradas+1
Until Rand(1,6)=6
Print "El seis ha salido en la tirada "+tiradas+"."

; Forever no acaba nunca; de él se sale con Exit.
numero=1
Repeat
	numero=numero+1
	If numero Mod 3=0 And numero Mod 7=0 Then Exit
Forever
Print "El primer número divisible entre 3 y entre 7 es "+numero+"."

WaitKey()
End
