; Una imagen hecha en el programa
; Tema: image
; Dibuja una imagen sin cargar ningún archivo, la gira y la repite como fondo.

Graphics 640,480,0,2
AppTitle "Imágenes"

; Un azulejo para el fondo: CreateImage da una imagen negra en la que dibujar.
azulejo=CreateImage(64,64)
SetBuffer ImageBuffer(azulejo)
ClsColor 30,60,90
Cls
Color 40,80,120
Rect 0,0,32,32
Rect 32,32,32,32

; Una nave con fondo magenta, que será el color transparente.
nave=CreateImage(48,48)
SetBuffer ImageBuffer(nave)
ClsColor 255,0,255
Cls
Color 220,220,230
Oval 18,0,12,44
Rect 4,28,40,8
Color 255,120,0
Rect 20,42,8,6
MaskImage nave,255,0,255
; La imagen se sujeta por su centro, también para girarla.
MidHandle nave

; Una copia girada; se gira una sola vez porque es una operación lenta.
tumbada=CopyImage(nave)
RotateImage tumbada,90

SetBuffer BackBuffer()
desplazado=0
While Not KeyHit(1)
	desplazado=(desplazado+1) Mod 64
	TileBlock azulejo,0,desplazado
	DrawImage nave,MouseX(),MouseY()
	DrawImage tumbada,320,100
	; DrawBlock dibuja también el color transparente.
	DrawBlock nave,100,100
	Color 255,255,255
	Text 10,450,"Mueve el ratón. Escape para salir."
	Flip
Wend

FreeImage azulejo
FreeImage nave
FreeImage tumbada
End
