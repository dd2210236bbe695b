; Un terreno con colinas
; Tema: terrain
; Levanta colinas en un terreno, pasea por él a la altura del suelo y lo modifica al andar.

Const Casillas=64

Graphics3D 640,480,0,2
AppTitle "Terreno"
SetBuffer BackBuffer()
luz=CreateLight()
RotateEntity luz,35,40,0

; El número de casillas de cada lado tiene que ser una potencia de 2.
terreno=CreateTerrain(Casillas)
For x=0 To Casillas
	For z=0 To Casillas
		; Las alturas van de 0 a 1; aquí, unas olas.
		ModifyTerrain terreno,x,z,.5+Sin#(x*14)*.25+Cos#(z*11)*.25
	Next
Next

; Cada casilla mide 1 y la altura también, así que se agranda.
ScaleEntity terreno,4,12,4
EntityColor terreno,90,150,70
TerrainShading terreno,True
TerrainDetail terreno,2000,True

camara=CreateCamera()
CameraClsColor camara,150,200,250
PositionEntity camara,128,0,40

While Not KeyHit(1)
	If KeyDown(200) Then MoveEntity camara,0,0,.4
	If KeyDown(208) Then MoveEntity camara,0,0,-.4
	If KeyDown(203) Then TurnEntity camara,0,2,0
	If KeyDown(205) Then TurnEntity camara,0,-2,0

	; La altura del suelo justo debajo de la cámara.
	suelo#=TerrainY#(terreno,EntityX#(camara),0,EntityZ#(camara))
	PositionEntity camara,EntityX#(camara),suelo#+2,EntityZ#(camara)

	; TerrainX y TerrainZ dicen en qué casilla se está.
	x=TerrainX#(terreno,EntityX#(camara),0,EntityZ#(camara))
	z=TerrainZ#(terreno,EntityX#(camara),0,EntityZ#(camara))
	If KeyHit(57) Then ModifyTerrain terreno,x,z,TerrainHeight#(terreno,x,z)+.1,True

	RenderWorld
	Text 10,10,"Casilla "+x+", "+z+"   altura "+suelo#
	Text 10,450,"Flechas: pasear   Espacio: levantar el suelo   Escape: salir"
	Flip
Wend
End
