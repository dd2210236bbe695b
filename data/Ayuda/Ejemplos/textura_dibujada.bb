; Una textura dibujada
; Tema: texture
; Dibuja una pared de ladrillos en una textura y la pone en un cubo y en el suelo.

Graphics3D 640,480,0,2
AppTitle "Texturas"

; El ancho y el alto de una textura conviene que sean potencias de 2.
ladrillos=CreateTexture(128,128)
SetBuffer TextureBuffer(ladrillos)
ClsColor 200,200,190
Cls
For fila=0 To 7
	For columna=-1 To 3
		Color Rand(150,190),Rand(50,70),40
		; Las filas impares van desplazadas medio ladrillo.
		Rect columna*32+(fila Mod 2)*16,fila*16,30,14
	Next
Next
SetBuffer BackBuffer()

; Otra textura, para un suelo que se mueve.
suelo_textura=CreateTexture(64,64)
SetBuffer TextureBuffer(suelo_textura)
ClsColor 60,90,60
Cls
Color 80,120,80
Oval 8,8,48,48
SetBuffer BackBuffer()
; Con 4 se ve cuatro veces más grande.
ScaleTexture suelo_textura,4,4

camara=CreateCamera()
PositionEntity camara,0,3,-6
RotateEntity camara,20,0,0
luz=CreateLight()
RotateEntity luz,45,45,0

cubo=CreateCube()
PositionEntity cubo,0,1,0
EntityTexture cubo,ladrillos
suelo=CreatePlane()
EntityTexture suelo,suelo_textura

avance#=0
While Not KeyHit(1)
	TurnEntity cubo,0,.6,0
	; Al desplazar la textura, el suelo parece correr.
	avance#=avance#+.005
	PositionTexture suelo_textura,0,avance#
	RenderWorld
	Color 255,255,255
	Text 10,10,"Textura de "+TextureWidth(ladrillos)+" por "+TextureHeight(ladrillos)
	Text 10,450,"Escape para salir"
	Flip
Wend
FreeTexture ladrillos
FreeTexture suelo_textura
End
