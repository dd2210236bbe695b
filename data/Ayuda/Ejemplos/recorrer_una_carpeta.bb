; Recorrer una carpeta
; Tema: file
; Escribe qué archivos y carpetas hay en la carpeta de trabajo y cuánto ocupan.

carpeta$=CurrentDir$()
Print "Carpeta: "+carpeta$
Print

; ReadDir abre la carpeta y devuelve 0 si no se puede.
abierta=ReadDir(carpeta$)
If abierta=0
	Print "No se puede leer esa carpeta."
	WaitKey()
	End
EndIf

archivos=0
bytes=0
Repeat
	; NextFile da un nombre cada vez, y un texto vacío cuando ya no quedan.
	nombre$=NextFile$(abierta)
	If nombre$="" Then Exit

	Select FileType(nombre$)
		Case 2
			; Los nombres "." y ".." son esta carpeta y la de encima.
			If nombre$<>"." And nombre$<>".." Then Print "[carpeta]  "+nombre$
		Case 1
			archivos=archivos+1
			bytes=bytes+FileSize(nombre$)
			Print RSet$(FileSize(nombre$),9)+"  "+nombre$
	End Select
Forever
CloseDir abierta

Print
Print archivos+" archivos, "+bytes+" bytes en total."
WaitKey()
End
