; Luces de colores
; Tema: light
; Compara una luz que llega de lejos, una bombilla que da vueltas y un foco.

Graphics3D 640,480,0,2
AppTitle "Luces"
SetBuffer BackBuffer()
AmbientLight 15,15,25

camara=CreateCamera()
PositionEntity camara,0,8,-14
RotateEntity camara,25,0,0

; Las luces se notan en los vértices: por eso hay muchas bolas.
For x=-4 To 4
	For z=-4 To 4
		bola=CreateSphere(8)
		ScaleEntity bola,.6,.6,.6
		PositionEntity bola,x*2,0,z*2
	Next
Next

; Tipo 1: como el sol, llega a todo desde la misma dirección.
sol=CreateLight(1)
RotateEntity sol,60,-30,0
LightColor sol,60,60,80

; Tipo 2: una bombilla; LightRange dice hasta dónde llega. Gira con su eje.
eje=CreatePivot()
bombilla=CreateLight(2,eje)
PositionEntity bombilla,6,2,0
LightColor bombilla,255,100,0
LightRange bombilla,4

; Tipo 3: un foco que alumbra un cono hacia donde mira.
foco=CreateLight(3)
PositionEntity foco,0,12,0
RotateEntity foco,90,0,0
LightColor foco,0,150,255
LightRange foco,20
LightConeAngles foco,10,40

encendido=True
While Not KeyHit(1)
	TurnEntity eje,0,1.5,0
	; Una luz oculta no alumbra.
	If KeyHit(57)
		encendido=Not encendido
		If encendido Then ShowEntity foco Else HideEntity foco
	EndIf
	RenderWorld
	Text 10,10,"Espacio: encender o apagar el foco   Escape: salir"
	Flip
Wend
End
