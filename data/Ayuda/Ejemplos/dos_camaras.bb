; Dos cámaras y niebla
; Tema: camera
; Divide la pantalla entre dos cámaras, una con niebla, y sitúa un rótulo sobre un cubo.

Graphics3D 640,480,0,2
AppTitle "Dos cámaras"
SetBuffer BackBuffer()
luz=CreateLight()
RotateEntity luz,60,30,0

; La de la izquierda mira a lo largo del camino, entre la niebla.
delante=CreateCamera()
CameraViewport delante,0,0,318,480
PositionEntity delante,0,3,-10
CameraClsColor delante,180,190,200
CameraFogMode delante,1
CameraFogColor delante,180,190,200
CameraFogRange delante,10,60

; La de la derecha lo ve desde arriba y sin perspectiva.
arriba=CreateCamera()
CameraViewport arriba,322,0,318,480
PositionEntity arriba,0,50,20
RotateEntity arriba,90,0,0
CameraProjMode arriba,2
CameraZoom arriba,.04
CameraClsColor arriba,30,50,30

For i=0 To 9
	poste=CreateCube()
	ScaleEntity poste,.5,3,.5
	PositionEntity poste,-4+(i Mod 2)*8,3,i*6
	EntityColor poste,200,120+i*10,60
Next
cubo=CreateCube()
PositionEntity cubo,0,1,10

While Not KeyHit(1)
	TurnEntity cubo,0,2,0
	If KeyDown(200) Then MoveEntity cubo,0,0,.2
	If KeyDown(208) Then MoveEntity cubo,0,0,-.2
	UpdateWorld
	RenderWorld
	; CameraProject dice en qué punto de la pantalla cae un punto del espacio.
	CameraProject delante,EntityX#(cubo),EntityY#(cubo)+2,EntityZ#(cubo)
	If EntityInView(cubo,delante) Then Text ProjectedX#(),ProjectedY#(),"cubo",True,True
	Text 10,450,"Flechas: mover   Escape: salir"
	Flip
Wend
End
