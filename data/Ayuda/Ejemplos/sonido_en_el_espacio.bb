; Un sonido con lugar
; Tema: sound3d
; Un cubo da vueltas alrededor de quien escucha y su sonido viene de donde está.

Graphics3D 640,480,0,2
AppTitle "Sonido 3D"
SetBuffer BackBuffer()

camara=CreateCamera()
PositionEntity camara,0,6,-14
RotateEntity camara,20,0,0
luz=CreateLight()

; El oído va con la cámara: lo que está a su izquierda suena a la izquierda.
oido=CreateListener(camara,.5)

; El cubo gira con un eje invisible que es su padre.
eje=CreatePivot()
cubo=CreateCube(eje)
PositionEntity cubo,8,0,0
EntityColor cubo,255,160,0

; Pon junto al programa un sonido corto con este nombre.
Const Archivo$="motor.wav"
sonido=0
If FileType(Archivo$)=1 Then sonido=Load3DSound(Archivo$)
If sonido<>0
	LoopSound sonido
	; Desde aquí el canal sigue él solo al cubo.
	canal=EmitSound(sonido,cubo)
EndIf

While Not KeyHit(1)
	TurnEntity eje,0,1,0
	UpdateWorld
	RenderWorld
	If sonido=0
		Text 10,10,"No hay ningún archivo "+Archivo$+": se ve, pero no se oye."
	Else
		Text 10,10,"Distancia: "+Int(EntityDistance#(camara,cubo))
	EndIf
	Text 10,450,"Escape para salir"
	Flip
Wend
End
