; Disparar desde una nave
; Tema: transform
; Calcula con TFormPoint de dónde sale un disparo y con TFormVector hacia dónde va.

Type Disparo
	Field bola,vx#,vy#,vz#,vida
End Type

Graphics3D 640,480,0,2
AppTitle "Disparar"
SetBuffer BackBuffer()
luz=CreateLight()
RotateEntity luz,45,45,0
camara=CreateCamera()
PositionEntity camara,0,0,-12

nave=CreateCone(12)
RotateMesh nave,90,0,0
ScaleMesh nave,.6,.6,1.5
EntityColor nave,120,180,255
blanco=CreateSphere()
PositionEntity blanco,5,3,4
EntityColor blanco,255,80,80

While Not KeyHit(1)
	If KeyDown(203) Then TurnEntity nave,0,2,0
	If KeyDown(205) Then TurnEntity nave,0,-2,0
	If KeyDown(200) Then TurnEntity nave,-2,0,0
	If KeyDown(208) Then TurnEntity nave,2,0,0

	If KeyHit(57)
		d.Disparo=New Disparo
		d\bola=CreateSphere(4)
		ScaleEntity d\bola,.2,.2,.2
		d\vida=100
		; La punta de la nave está en 0,0,1.5 de sus propios ejes; 0 es el mundo.
		TFormPoint 0,0,1.5,nave,0
		PositionEntity d\bola,TFormedX#(),TFormedY#(),TFormedZ#()
		; Y su frente, en los ejes del mundo, es la dirección del disparo.
		TFormVector 0,0,.3,nave,0
		d\vx=TFormedX#() : d\vy=TFormedY#() : d\vz=TFormedZ#()
	EndIf

	For d=Each Disparo
		TranslateEntity d\bola,d\vx,d\vy,d\vz
		d\vida=d\vida-1
		If d\vida=0 Then FreeEntity d\bola : Delete d
	Next

	RenderWorld
	Text 10,10,"Para apuntar a la bola hay que girar "+Int(DeltaYaw#(nave,blanco))+" grados."
	Text 10,450,"Flechas: girar   Espacio: disparar   Escape: salir"
	Flip
Wend
End
