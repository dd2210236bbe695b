; Choques en dos dimensiones
; Tema: image
; Compara el choque por rectángulos, rápido, con el choque píxel a píxel, exacto.

Graphics 640,480,0,2
AppTitle "Choques"
AutoMidHandle True

rueda=CreateImage(120,120)
SetBuffer ImageBuffer(rueda)
Color 0,180,255
Oval 0,0,120,120
; El agujero es negro: con la máscara normal no cuenta para el choque exacto.
Color 0,0,0
Oval 30,30,60,60

punta=CreateImage(40,40)
SetBuffer ImageBuffer(punta)
Color 255,200,0
Oval 0,0,40,40

SetBuffer BackBuffer()
HidePointer
While Not KeyHit(1)
	Cls
	x=MouseX() : y=MouseY()
	DrawImage rueda,320,240
	DrawImage punta,x,y

	Color 255,255,255
	If ImagesOverlap(rueda,320,240,punta,x,y)
		Text 10,10,"Se tocan los rectángulos"
	EndIf
	; El 0 que sigue a cada posición es el fotograma de la imagen.
	If ImagesCollide(rueda,320,240,0,punta,x,y,0)
		Text 10,30,"Se tocan los dibujos"
	EndIf

	; Para dos zonas cualesquiera no hacen falta imágenes.
	Color 120,120,120
	If RectsOverlap(x-20,y-20,40,40,520,360,100,100) Then Color 255,60,60
	Rect 520,360,100,100,False
	Text 570,410,"zona",True,True
	Flip
Wend
ShowPointer
End
