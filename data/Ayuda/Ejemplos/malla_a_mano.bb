; Una malla hecha a mano
; Tema: surface
; Construye una pirámide vértice a vértice, le da un color a cada uno y la deforma.

Graphics3D 640,480,0,2
AppTitle "Malla a mano"
SetBuffer BackBuffer()

camara=CreateCamera()
PositionEntity camara,0,1,-5

; Una malla está hecha de superficies, y una superficie, de triángulos.
piramide=CreateMesh()
caras=CreateSurface(piramide)

; AddVertex devuelve el número del vértice, que se usa en AddTriangle.
punta=AddVertex(caras,0,1,0)
a=AddVertex(caras,-1,-1,-1)
b=AddVertex(caras,1,-1,-1)
c=AddVertex(caras,1,-1,1)
d=AddVertex(caras,-1,-1,1)

; Visto desde fuera, los tres vértices van en el sentido del reloj.
AddTriangle(caras,a,punta,b)
AddTriangle(caras,b,punta,c)
AddTriangle(caras,c,punta,d)
AddTriangle(caras,d,punta,a)
AddTriangle(caras,a,b,c)
AddTriangle(caras,a,c,d)

VertexColor caras,punta,255,255,0
VertexColor caras,a,255,0,0
VertexColor caras,b,0,255,0
VertexColor caras,c,0,0,255
VertexColor caras,d,255,0,255
; 1 sin sombras más 2 color de los vértices.
EntityFX piramide,1+2

angulo#=0
While Not KeyHit(1)
	; La punta se mueve sin cambiar el resto.
	angulo#=angulo#+3
	VertexCoords caras,punta,Sin#(angulo#)*.5,1,0
	TurnEntity piramide,.3,1,0
	RenderWorld
	Text 10,10,CountVertices(caras)+" vértices y "+CountTriangles(caras)+" triángulos"
	Text 10,450,"Escape para salir"
	Flip
Wend
End
