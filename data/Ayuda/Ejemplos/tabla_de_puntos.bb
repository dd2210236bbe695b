; Matrices con Dim
; Tema: array
; Guarda puntos en una matriz, los ordena y usa otra de dos dimensiones como tablero.

; Los índices empiezan en 0, así que hay seis casillas: de la 0 a la 5.
Const Ultimo=5
Dim puntos(Ultimo)
SeedRnd MilliSecs()

For i=0 To Ultimo
	puntos(i)=Rand(0,100)
Next

; Se ordenan cambiando de sitio los vecinos que están al revés.
For vuelta=1 To Ultimo
	For i=0 To Ultimo-vuelta
		If puntos(i)<puntos(i+1)
			guardado=puntos(i)
			puntos(i)=puntos(i+1)
			puntos(i+1)=guardado
		EndIf
	Next
Next

Print "Los puntos, de más a menos:"
For i=0 To Ultimo
	lugar=i+1
	Print lugar+"º  "+puntos(i)
Next

; Con dos índices la matriz es una cuadrícula, y con $ guarda textos.
Dim casilla$(2,2)
For y=0 To 2
	For x=0 To 2
		casilla$(x,y)="."
	Next
Next
casilla$(1,1)="X"
casilla$(2,0)="O"

Print "Un tablero:"
For y=0 To 2
	Print casilla$(0,y)+" "+casilla$(1,y)+" "+casilla$(2,y)
Next

WaitKey()
End
