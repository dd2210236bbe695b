; Un sonido hecho en el programa
; Tema: sound
; Escribe un tono en un archivo WAV, lo carga y lo toca con distinta altura y volumen.

Const Archivo$="tono.wav",PorSegundo=22050

If Not GuardarTono(Archivo$,440,PorSegundo/2)
	RuntimeError "No se puede crear "+Archivo$
EndIf
tono=LoadSound(Archivo$)
If tono=0 Then RuntimeError "No se puede cargar "+Archivo$

; Tocarlo más deprisa lo hace más agudo: así sale una escala.
Restore escala
For nota=1 To 8
	Read hercios#
	SoundPitch tono,PorSegundo*hercios#/440
	canal=PlaySound(tono)
	; Suena cada vez más hacia la derecha.
	ChannelPan canal,-1+nota*.22
	Delay 400
Next

Print "Pulsa una tecla para salir."
WaitKey()
FreeSound tono
DeleteFile Archivo$
End

; Un WAV es una cabecera y detrás la altura de la onda en cada instante.
Function GuardarTono(nombre$,hercios#,muestras)
	salida=WriteFile(nombre$)
	If salida=0 Then Return False
	Letras(salida,"RIFF") : WriteInt salida,36+muestras*2
	Letras(salida,"WAVEfmt ") : WriteInt salida,16
	WriteShort salida,1 : WriteShort salida,1
	WriteInt salida,PorSegundo : WriteInt salida,PorSegundo*2
	WriteShort salida,2 : WriteShort salida,16
	Letras(salida,"data") : WriteInt salida,muestras*2
	For i=1 To muestras
		angulo#=angulo#+360*hercios#/PorSegundo
		; El tono se apaga poco a poco.
		WriteShort salida,Sin#(angulo#)*12000*(muestras-i)/muestras
	Next
	CloseFile salida
	Return True
End Function

Function Letras(salida,texto$)
	For i=1 To Len(texto$)
		WriteByte salida,Asc(Mid$(texto$,i,1))
	Next
End Function

.escala
Data 261.6,293.7,329.6,349.2,392.0,440.0,493.9,523.3
