; Un cubo que gira bajo una luz. Las flechas lo hacen girar más deprisa
; hacia un lado o hacia el otro, y la barra espaciadora cambia su color.
Graphics3D 640,480,0,2
AppTitle "Cubo"
SetBuffer BackBuffer()
SeedRnd MilliSecs()

; Sin cámara no se ve nada.
camara=CreateCamera()
PositionEntity camara,0,0,-5
CameraClsColor camara,20,20,60

; Una luz que llega de arriba y un poco de claridad por todas partes
luz=CreateLight()
RotateEntity luz,45,30,0
AmbientLight 60,60,60

cubo=CreateCube()
EntityColor cubo,255,140,0
EntityShininess cubo,.5

giro#=1
While Not KeyHit(1)
	If KeyDown(203) Then giro=giro+.05
	If KeyDown(205) Then giro=giro-.05
	If KeyHit(57) Then EntityColor cubo,Rand(50,255),Rand(50,255),Rand(50,255)

	TurnEntity cubo,.4,giro,.2
	UpdateWorld
	RenderWorld

	; El texto se escribe encima de la imagen ya terminada.
	Color 255,255,255
	Text 10,10,"Flechas: girar   Espacio: color   Escape: salir"
	Flip
Wend

FreeEntity cubo
End
