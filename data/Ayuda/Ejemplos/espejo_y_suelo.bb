; Un suelo y un espejo
; Tema: plane
; Crea un suelo sin límites, lo deja medio transparente y pone debajo un espejo.

Graphics3D 640,480,0,2
AppTitle "Suelo y espejo"
SetBuffer BackBuffer()
luz=CreateLight()
RotateEntity luz,50,30,0
camara=CreateCamera()
CameraClsColor camara,90,150,220

; Una textura de losas, para que se vea el suelo.
losas=CreateTexture(64,64)
SetBuffer TextureBuffer(losas)
Color 230,230,230
Rect 0,0,64,64
Color 120,120,140
Rect 0,0,32,32
Rect 32,32,32,32
SetBuffer BackBuffer()
Color 255,255,255
ScaleTexture losas,4,4

; Un plano no acaba nunca; basta con decir a qué altura está.
suelo=CreatePlane()
EntityTexture suelo,losas
EntityAlpha suelo,.6

; El espejo refleja todo lo que está encima y se ve a través del suelo.
espejo=CreateMirror()

esfera=CreateSphere(24)
EntityColor esfera,255,120,40
EntityShininess esfera,1

angulo#=0
While Not KeyHit(1)
	angulo#=angulo#+2
	PositionEntity esfera,0,2+Abs(Sin#(angulo#))*3,0

	; La cámara da vueltas y mira siempre a la esfera.
	PositionEntity camara,Sin#(angulo#/6)*12,5,-Cos#(angulo#/6)*12
	PointEntity camara,esfera
	RenderWorld
	Text 10,450,"Escape para salir"
	Flip
Wend
End
