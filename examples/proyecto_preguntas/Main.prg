; Un concurso en modo texto. Las preguntas están en otro archivo del mismo
; proyecto, para poder cambiarlas sin tocar el programa.
Include "Preguntas.bb"

Print "Responde con el número de la respuesta."
Print ""

Restore Preguntas
aciertos=0
For i=1 To CuantasPreguntas
	Read pregunta$,correcta
	Print pregunta$
	For r=1 To 3
		Read respuesta$
		Print "  "+r+". "+respuesta$
	Next
	elegida=Input("Tu respuesta: ")
	If elegida=correcta
		Print "¡Muy bien!"
		aciertos=aciertos+1
	Else
		Print "No, era la "+correcta+"."
	EndIf
	Print ""
Next

Print "Has acertado "+aciertos+" de "+CuantasPreguntas+"."
WaitKey
End
