; Figuras y mallas
; Tema: mesh
; Crea las cuatro figuras básicas, las une en una sola malla y la copia muchas veces.

Graphics3D 640,480,0,2
AppTitle "Figuras"
SetBuffer BackBuffer()

camara=CreateCamera()
PositionEntity camara,0,10,-22
RotateEntity camara,20,0,0
luz=CreateLight()
RotateEntity luz,45,30,0

; Un árbol es un tronco con una copa. Las órdenes con Mesh mueven los vértices;
; las que llevan Entity mueven la figura entera, y aquí no servirían.
arbol=CreateCylinder(8)
ScaleMesh arbol,.3,1,.3
PositionMesh arbol,0,1,0
tono=CreateBrush(140,90,40)
PaintMesh arbol,tono

copa=CreateCone(12)
ScaleMesh copa,1.2,1.5,1.2
PositionMesh copa,0,3.2,0
BrushColor tono,40,160,60
PaintMesh copa,tono

; AddMesh añade una copia de los triángulos; la copa suelta ya no hace falta.
AddMesh copa,arbol
FreeEntity copa
FreeBrush tono
medidas$="Árbol: "+MeshWidth#(arbol)+" de ancho y "+MeshHeight#(arbol)+" de alto"

; Las copias de CopyEntity comparten la malla: ocupan poco.
For i=1 To 40
	otro=CopyEntity(arbol)
	PositionEntity otro,Rnd#(-15,15),0,Rnd#(-10,25)
	tamano#=Rnd#(.7,1.5)
	ScaleEntity otro,tamano#,tamano#,tamano#
Next

; FlipMesh deja ver una figura por dentro: así se hace un cielo.
cielo=CreateSphere(16)
ScaleEntity cielo,200,200,200
FlipMesh cielo
EntityColor cielo,90,150,230
EntityFX cielo,1

While Not KeyHit(1)
	TurnEntity arbol,0,1,0
	RenderWorld
	Text 10,10,medidas$
	Text 10,450,"Escape para salir"
	Flip
Wend
End
