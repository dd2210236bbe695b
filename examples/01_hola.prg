; Saluda en modo texto: pregunta el nombre y responde según su longitud.
AppTitle "Hola"

Print "¡Hola! Este programa está escrito en Blitz3D."
Print
nombre$=Trim$(Input$("¿Cómo te llamas? "))
If nombre$="" Then nombre$="Sin Nombre"

; Select sigue un camino u otro según un valor.
Select Len(nombre$)
	Case 1,2,3
		Print "Un nombre corto: se escribe en un momento."
	Case 4,5,6,7,8
		Print "Un nombre ni corto ni largo."
	Default
		Print "¡Un nombre largo, de "+Len(nombre$)+" letras!"
End Select

; For repite algo un número conocido de veces.
For vez=1 To 3
	Print vez+". Hola, "+nombre$+"."
Next

Print
Print "Hoy es "+CurrentDate$()+" y son las "+CurrentTime$()+"."
Print "Pulsa una tecla para salir."
WaitKey()
End
