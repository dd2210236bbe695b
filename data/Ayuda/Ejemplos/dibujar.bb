; Dibujar figuras
; Tema: graphics
; Dibuja puntos, líneas, rectángulos y óvalos de colores, y lee el color de un punto.

; Ancho, alto, bits de color (0, los mejores) y modo (2, en una ventana).
Graphics 640,480,0,2
AppTitle "Dibujar"

; El cielo: una línea por fila, cada vez más clara.
For y=0 To 299
	Color 40+y/3,100+y/3,200+y/6
	Line 0,y,639,y
Next

; El suelo y una casa. El último valor de Rect dice si va relleno.
Color 60,150,60
Rect 0,300,640,180
Color 220,190,140
Rect 220,200,200,150
Color 90,60,30
Rect 290,270,60,80
Rect 220,200,200,150,False

; El tejado, hecho de líneas que se van acortando.
Color 190,60,40
For i=0 To 80
	Line 200+i*1.5,200-i,440-i*1.5,200-i
Next

; El sol y unas flores en lugares al azar.
Color 255,230,0
Oval 500,40,80,80
For i=1 To 200
	Color Rand(150,255),Rand(100,255),Rand(100,255)
	Plot Rand(0,639),Rand(355,479)
Next

; GetColor toma el color de un punto; ColorRed y las demás dan sus partes.
GetColor 540,80
rojo=ColorRed() : verde=ColorGreen() : azul=ColorBlue()
Color 255,255,255
Text 10,455,"Color del sol: "+rojo+", "+verde+", "+azul+". Pulsa una tecla."
WaitKey()
End
