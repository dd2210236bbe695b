; Pintar con pinceles
; Tema: brush
; Prepara tres pinceles, con color, brillo y transparencia, y pinta con ellos varias figuras.

Graphics3D 640,480,0,2
AppTitle "Pinceles"
SetBuffer BackBuffer()

camara=CreateCamera()
PositionEntity camara,0,1,-9
CameraClsColor camara,40,60,90
luz=CreateLight()
RotateEntity luz,30,30,0

; Un pincel reúne todo lo que dice cómo se ve una superficie.
metal=CreateBrush(180,190,200)
BrushShininess metal,1

cristal=CreateBrush(100,220,255)
BrushAlpha cristal,.4

; El efecto 1 hace que se vea igual de claro por todas partes.
brasa=CreateBrush(255,80,0)
BrushFX brasa,1

; Con el mismo pincel se pintan tantas figuras como se quiera.
For i=-1 To 1
	bola=CreateSphere(24)
	PositionEntity bola,i*3,2,0
	cubo=CreateCube()
	PositionEntity cubo,i*3,-1,0
	TurnEntity cubo,20,30,0
	Select i
		Case -1
			PaintEntity bola,metal
			PaintEntity cubo,metal
		Case 0
			PaintEntity bola,cristal
			PaintEntity cubo,cristal
		Case 1
			PaintEntity bola,brasa
			PaintEntity cubo,brasa
	End Select
Next

; Lo ya pintado no necesita el pincel.
FreeBrush metal
FreeBrush cristal
FreeBrush brasa

While Not KeyHit(1)
	TurnEntity luz,0,1,0
	RenderWorld
	Text 10,10,"Metal, cristal y brasa. Escape para salir."
	Flip
Wend
End
