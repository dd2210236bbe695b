; Elegir con el ratón
; Tema: picking
; Señala cubos de una escena 3D con el ratón, les cambia el color y muestra dónde se acertó.

Graphics3D 640,480,0,2
AppTitle "Elegir con el ratón"
SetBuffer BackBuffer()
luz=CreateLight()
RotateEntity luz,45,30,0
camara=CreateCamera()
PositionEntity camara,0,0,-14

For x=-2 To 2
	For y=-1 To 1
		cubo=CreateCube()
		PositionEntity cubo,x*3,y*3,0
		TurnEntity cubo,Rand(0,90),Rand(0,90),0
		NameEntity cubo,"cubo "+(x+3)+"-"+(y+2)
		; Sin esto no se puede elegir: 2 mira sus triángulos.
		EntityPickMode cubo,2
	Next
Next

; Una señal en el punto en que se acierta.
senal=CreateSphere(6)
ScaleEntity senal,.1,.1,.1
EntityColor senal,255,0,0
EntityFX senal,1

While Not KeyHit(1)
	; CameraPick busca lo que hay bajo ese punto de la pantalla.
	elegido=CameraPick(camara,MouseX(),MouseY())
	If elegido<>0
		ShowEntity senal
		PositionEntity senal,PickedX#(),PickedY#(),PickedZ#()
		If MouseHit(1) Then EntityColor elegido,Rand(255),Rand(255),Rand(255)
	Else
		HideEntity senal
	EndIf

	RenderWorld
	If elegido<>0 Then Text 10,10,EntityName$(elegido)
	Text 10,450,"Botón izquierdo: cambiar el color   Escape: salir"
	Flip
Wend
End
