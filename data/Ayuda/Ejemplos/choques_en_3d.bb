; Choques en tres dimensiones
; Tema: collision
; Una bola rueda por una habitación, resbala por las paredes y recoge monedas.

Const TipoBola=1,TipoPared=2,TipoMoneda=3

Graphics3D 640,480,0,2
AppTitle "Choques en 3D"
SetBuffer BackBuffer()
luz=CreateLight()
RotateEntity luz,60,30,0
camara=CreateCamera()
PositionEntity camara,0,22,-16
RotateEntity camara,55,0,0

bola=CreateSphere(16)
EntityColor bola,0,160,255
; El radio del choque es el mismo que el de la figura.
EntityRadius bola,1
EntityType bola,TipoBola

; Cuatro paredes: dos a los lados y dos al fondo y delante.
For i=-1 To 1 Step 2
	pared=CreateCube()
	ScaleEntity pared,.5,1,10.5
	PositionEntity pared,i*10,0,0
	EntityType pared,TipoPared
	pared=CreateCube()
	ScaleEntity pared,10.5,1,.5
	PositionEntity pared,0,0,i*10
	EntityType pared,TipoPared
Next
For i=1 To 8
	moneda=CreateSphere(6)
	ScaleEntity moneda,.5,.5,.5
	PositionEntity moneda,Rnd#(-8,8),0,Rnd#(2,8)
	EntityColor moneda,255,220,0
	EntityRadius moneda,.5
	EntityType moneda,TipoMoneda
Next

; La bola contra los triángulos de las paredes (2) y resbalando por ellas (2);
; contra las monedas, como esferas (1) y quieta (1).
Collisions TipoBola,TipoPared,2,2
Collisions TipoBola,TipoMoneda,1,1

puntos=0
While Not KeyHit(1)
	MoveEntity bola,(KeyDown(205)-KeyDown(203))*.2,0,(KeyDown(200)-KeyDown(208))*.2
	; Los choques se resuelven aquí; después se pregunta por ellos.
	UpdateWorld
	tocada=EntityCollided(bola,TipoMoneda)
	If tocada<>0 Then FreeEntity tocada : puntos=puntos+1
	RenderWorld
	Text 10,10,"Monedas: "+puntos+"   Flechas: mover   Escape: salir"
	Flip
Wend
End
