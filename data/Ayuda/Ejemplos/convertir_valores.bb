; Convertir valores
; Tema: conversion
; Pasa de texto a número y de número a texto, y comprueba lo que se ha escrito.

; Lo que se escribe con Input es un texto, aunque sean cifras.
escrito$=Trim$(Input$("Escribe un número: "))
If Not EsNumero(escrito$) Then Print "Eso no es un número; se toma lo que se pueda leer."

; Int da un entero y redondea; Float conserva los decimales.
decimal#=Float(escrito$)
Print "Con decimales: "+decimal#
Print "Redondeado:    "+Int(decimal#)
Print "Hacia abajo:   "+Int(Floor#(decimal#))
Print "Hacia arriba:  "+Int(Ceil#(decimal#))

; Str hace visible la conversión, aunque + ya convierte él solo.
junto$=Str(2)+Str(3)
Print "Como textos, 2 y 3 juntos son "+junto$+"; sumados son "+(2+3)+"."

; Dos decimales: se redondea en centésimas y se vuelve a dividir.
Print "Con dos decimales: "+Int(decimal#*100)/100.0

WaitKey()
End

; Acepta cifras, un signo al principio y un solo punto.
Function EsNumero(texto$)
	cifras=0
	puntos=0
	For i=1 To Len(texto$)
		letra$=Mid$(texto$,i,1)
		If letra$>="0" And letra$<="9"
			cifras=cifras+1
		ElseIf letra$="."
			puntos=puntos+1
		ElseIf letra$<>"-" Or i>1
			Return False
		EndIf
	Next
	Return cifras>0 And puntos<2
End Function
