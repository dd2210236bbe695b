; Datos dentro del programa
; Tema: data
; Lee con Read un mapa guardado en líneas Data y lo dibuja en la pantalla.

Graphics 640,480,0,2
AppTitle "Un mapa en Data"

; Restore dice en qué etiqueta empieza la lectura.
Restore mapa
Read ancho,alto

Const Lado=40
For y=0 To alto-1
	Read fila$
	For x=0 To ancho-1
		; Cada letra es una casilla: # muro, o moneda y punto suelo.
		Select Mid$(fila$,x+1,1)
			Case "#"
				Color 130,90,60
				Rect x*Lado,y*Lado,Lado-1,Lado-1
			Case "o"
				Color 255,220,0
				Oval x*Lado+10,y*Lado+10,20,20
			Default
				Color 40,60,40
				Rect x*Lado,y*Lado,Lado-1,Lado-1
		End Select
	Next
Next

; Otra etiqueta, otra lista: se puede volver a leer cuando se quiera.
Restore mensaje
Read aviso$
Color 255,255,255
Text 10,440,aviso$
WaitKey()
End

.mapa
Data 12,7
Data "############"
Data "#....o.....#"
Data "#.####.###.#"
Data "#.#o.....#.#"
Data "#.####.###.#"
Data "#.....o....#"
Data "############"

.mensaje
Data "Cambia las letras de las líneas Data y verás otro mapa."
