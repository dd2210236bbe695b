; Medir el tiempo
; Tema: system
; Mide con MilliSecs cuánto tarda un cálculo y pone a prueba tus reflejos.

AppTitle "Medir el tiempo","¿Seguro que quieres salir?"
SeedRnd MilliSecs()

; La diferencia entre dos lecturas es lo que se ha tardado.
inicio=MilliSecs()
suma#=0
For i=1 To 1000000
	suma#=suma#+Sqr#(i)
Next
Print "Un millón de raíces: "+(MilliSecs()-inicio)+" milisegundos."
Print

Print "Cuando salga YA, pulsa una tecla lo antes que puedas."
; Delay para el programa; aquí, un rato que no se puede adivinar.
Delay Rand(1500,4000)

; Se olvidan las teclas pulsadas antes de tiempo.
FlushKeys
Print "¡YA!"
inicio=MilliSecs()
WaitKey()
tiempo=MilliSecs()-inicio

Print "Has tardado "+tiempo+" milésimas de segundo."
If tiempo<250
	Print "¡Muy rápido!"
Else
	Print "Se puede mejorar."
EndIf

; Esta línea solo se ve en el registro del depurador.
DebugLog "Reflejos: "+tiempo

Delay 1000
Print "Pulsa una tecla para salir."
FlushKeys
WaitKey()
End
