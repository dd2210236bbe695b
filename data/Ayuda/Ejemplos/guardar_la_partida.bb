; Guardar y leer un archivo
; Tema: file
; Guarda la mejor marca en un archivo de texto y la recupera la próxima vez.

Const Archivo$="mejor_marca.txt"

mejor=0
campeon$="nadie"

; FileType dice si el archivo existe: 1 es un archivo y 2 una carpeta.
If FileType(Archivo$)=1
	lectura=ReadFile(Archivo$)
	If lectura<>0
		mejor=Int(ReadLine$(lectura))
		campeon$=ReadLine$(lectura)
		CloseFile lectura
	EndIf
EndIf

Print "La mejor marca es de "+campeon$+": "+mejor+" puntos."
SeedRnd MilliSecs()
puntos=Rand(1,100)
Print "Tú has sacado "+puntos+"."

If puntos>mejor
	nombre$=Input$("¡Nueva marca! ¿Cómo te llamas? ")
	; WriteFile devuelve 0 cuando no se puede escribir en ese lugar.
	escritura=WriteFile(Archivo$)
	If escritura=0
		Print "No se puede escribir en "+CurrentDir$()
	Else
		WriteLine escritura,puntos
		WriteLine escritura,nombre$
		CloseFile escritura
		Print "Guardado: "+FileSize(Archivo$)+" bytes."
	EndIf
EndIf

Print "Pulsa B para borrar la marca u otra tecla para salir."
tecla=WaitKey()
If Chr$(tecla)="b" Or Chr$(tecla)="B" Then DeleteFile Archivo$
End
