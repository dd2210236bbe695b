; Pasear por un nivel BSP
; Tema: bsp
; Carga un nivel BSP, si está el archivo, y deja pasear por él sin atravesar las paredes.

Const Archivo$="nivel.bsp"
Const TipoPaseante=1,TipoNivel=2

If FileType(Archivo$)<>1
	Print "Pon junto al programa un nivel llamado "+Archivo$+"."
	WaitKey()
	End
EndIf

Graphics3D 640,480,0,2
AppTitle "Nivel BSP"
SetBuffer BackBuffer()

; El segundo valor aclara u oscurece la luz guardada en el nivel.
nivel=LoadBSP(Archivo$,.2)
If nivel=0 Then RuntimeError "No se puede cargar "+Archivo$
BSPLighting nivel,True
BSPAmbientLight nivel,30,30,30
EntityType nivel,TipoNivel

; La cámara choca con el nivel como una esfera y resbala por las paredes.
camara=CreateCamera()
EntityRadius camara,20
EntityType camara,TipoPaseante
Collisions TipoPaseante,TipoNivel,2,2

HidePointer
While Not KeyHit(1)
	; El ratón mira alrededor; se devuelve al centro para que no se salga.
	cabeceo#=cabeceo#+MouseYSpeed()*.2
	If cabeceo#<-80 Then cabeceo#=-80
	If cabeceo#>80 Then cabeceo#=80
	guinada#=guinada#-MouseXSpeed()*.2
	MoveMouse GraphicsWidth()/2,GraphicsHeight()/2
	RotateEntity camara,cabeceo#,guinada#,0

	If KeyDown(200) Then MoveEntity camara,0,0,4
	If KeyDown(208) Then MoveEntity camara,0,0,-4
	UpdateWorld
	RenderWorld
	Text 10,450,"Ratón: mirar   Flechas: andar   Escape: salir"
	Flip
Wend
ShowPointer
End
