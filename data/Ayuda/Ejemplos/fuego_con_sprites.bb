; Fuego con sprites
; Tema: sprite
; Hace una hoguera con muchos sprites que suben, giran y se apagan.

Type Chispa
	Field sprite,vida#,velocidad#
End Type

Graphics3D 640,480,0,2
AppTitle "Fuego"
SetBuffer BackBuffer()
camara=CreateCamera()
PositionEntity camara,0,3,-10

; Una mancha redonda, más clara por el centro.
mancha=CreateTexture(64,64)
SetBuffer TextureBuffer(mancha)
For radio=32 To 1 Step -1
	Color 255-radio*7.9,255-radio*7.9,255-radio*7.9
	Oval 32-radio,32-radio,radio*2,radio*2
Next
SetBuffer BackBuffer()
Color 255,255,255

While Not KeyHit(1)
	; Cada vuelta nacen dos chispas nuevas.
	For i=1 To 2
		c.Chispa=New Chispa
		c\sprite=CreateSprite()
		c\vida=1
		c\velocidad=Rnd#(.04,.09)
		EntityTexture c\sprite,mancha
		; Mezcla 3: sumar la luz, así que lo negro no se ve.
		EntityBlend c\sprite,3
		EntityColor c\sprite,255,Rand(80,160),20
		PositionEntity c\sprite,Rnd#(-1,1),0,Rnd#(-1,1)
	Next

	For c=Each Chispa
		c\vida=c\vida-.015
		If c\vida<=0
			FreeEntity c\sprite
			Delete c
		Else
			TranslateEntity c\sprite,Rnd#(-.03,.03),c\velocidad,0
			RotateSprite c\sprite,c\vida*200
			ScaleSprite c\sprite,c\vida,c\vida
			EntityAlpha c\sprite,c\vida
		EndIf
	Next

	RenderWorld
	Text 10,450,"Escape para salir"
	Flip
Wend
End
