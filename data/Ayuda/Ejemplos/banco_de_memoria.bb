; Bancos de memoria
; Tema: bank
; Guarda un mapa en un banco, lo agranda, lo copia y lo lleva a un archivo.

Const Ancho=16,Alto=4
Const Archivo$="mapa.dat"

; Un byte por casilla; al crearlo, todo vale 0.
mapa=CreateBank(Ancho*Alto)
SeedRnd MilliSecs()
For i=1 To 20
	PokeByte mapa,Rand(0,BankSize(mapa)-1),1
Next
Mostrar(mapa)

; Detrás del mapa se guarda una marca, un entero de cuatro bytes.
ResizeBank mapa,Ancho*Alto+4
PokeInt mapa,Ancho*Alto,12345

; WriteBytes escribe de una vez una parte del banco.
salida=WriteFile(Archivo$)
If salida=0 Then RuntimeError "No se puede crear "+Archivo$
WriteBytes(mapa,salida,0,BankSize(mapa))
CloseFile salida

; ReadBytes lo lee en otro banco del mismo tamaño.
copia=CreateBank(FileSize(Archivo$))
entrada=ReadFile(Archivo$)
leidos=ReadBytes(copia,entrada,0,BankSize(copia))
CloseFile entrada
DeleteFile Archivo$

Print leidos+" bytes leídos; la marca es "+PeekInt(copia,Ancho*Alto)+"."
Mostrar(copia)

FreeBank mapa
FreeBank copia
WaitKey()
End

Function Mostrar(banco)
	For y=0 To Alto-1
		For x=0 To Ancho-1
			If PeekByte(banco,y*Ancho+x) Then Write "#" Else Write "."
		Next
		Print
	Next
	Print
End Function
