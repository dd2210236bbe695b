; Mover y girar una entidad
; Tema: entity
; Conduce un coche con las flechas, con ruedas que van unidas a él y una cámara que lo sigue.

Graphics3D 640,480,0,2
AppTitle "Mover una entidad"
SetBuffer BackBuffer()
luz=CreateLight()
RotateEntity luz,50,30,0
camara=CreateCamera()

coche=CreatePivot()
cuerpo=CreateCube(coche)
ScaleEntity cuerpo,1,.4,2
PositionEntity cuerpo,0,.8,0
EntityColor cuerpo,220,40,40

; Una entidad con padre se mueve con él, y su posición se cuenta desde él.
For x=-1 To 1 Step 2
	For z=-1 To 1 Step 2
		rueda=CreateSphere(8,coche)
		ScaleEntity rueda,.2,.5,.5
		PositionEntity rueda,x*1.1,.5,z*1.3
		EntityColor rueda,60,60,60
	Next
Next

; Unos bloques para notar el movimiento.
For i=1 To 60
	bloque=CreateCube()
	PositionEntity bloque,Rnd#(-60,60),0,Rnd#(-60,60)
	EntityColor bloque,80,Rand(100,200),120
Next

velocidad#=0
While Not KeyHit(1)
	If KeyDown(200) Then velocidad#=velocidad#+.01
	If KeyDown(208) Then velocidad#=velocidad#-.01
	velocidad#=velocidad#*.98
	If KeyDown(203) Then TurnEntity coche,0,velocidad#*6,0
	If KeyDown(205) Then TurnEntity coche,0,-velocidad#*6,0

	; MoveEntity avanza hacia donde mira el coche.
	MoveEntity coche,0,0,velocidad#

	; La cámara se pone detrás: mismo lugar y giro, y luego hacia atrás.
	PositionEntity camara,EntityX#(coche),3,EntityZ#(coche)
	RotateEntity camara,12,EntityYaw#(coche),0
	MoveEntity camara,0,0,-8

	RenderWorld
	Text 10,10,"x "+Int(EntityX#(coche))+"  z "+Int(EntityZ#(coche))+"  giro "+Int(EntityYaw#(coche))
	Text 10,450,"Flechas: conducir   Escape: salir"
	Flip
Wend
End
