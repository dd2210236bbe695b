; Animar por claves
; Tema: animation
; Graba posturas de un brazo en unos fotogramas y deja que el programa haga el resto.

Graphics3D 640,480,0,2
AppTitle "Animación"
SetBuffer BackBuffer()
luz=CreateLight()
RotateEntity luz,45,30,0
camara=CreateCamera()
PositionEntity camara,0,2,-10

; El brazo gira por el hombro, así que la caja se aparta de ese punto.
brazo=CreateCube()
ScaleMesh brazo,.3,1.5,.3
PositionMesh brazo,0,1.5,0
EntityColor brazo,255,200,120

; SetAnimKey guarda cómo está la entidad en un fotograma.
SetAnimKey brazo,0
RotateEntity brazo,0,0,80
SetAnimKey brazo,20
RotateEntity brazo,0,0,-80
SetAnimKey brazo,60
RotateEntity brazo,0,0,0
SetAnimKey brazo,80

; Con todas las claves se hace una secuencia de 80 fotogramas.
saludo=AddAnimSeq(brazo,80)

; Modo 1: repetir; a velocidad 1, un fotograma en cada UpdateWorld.
Animate brazo,1,1,saludo
velocidad#=1

While Not KeyHit(1)
	If KeyHit(57)
		If Animating(brazo) Then Animate brazo,0 Else Animate brazo,1,velocidad#,saludo
	EndIf
	If KeyHit(200)
		velocidad#=velocidad#+.5
		Animate brazo,1,velocidad#,saludo
	EndIf
	UpdateWorld
	RenderWorld
	Text 10,10,"Fotograma "+Int(AnimTime#(brazo))+" de "+AnimLength(brazo)
	Text 10,450,"Espacio: parar o seguir   Arriba: más deprisa   Escape: salir"
	Flip
Wend
End
