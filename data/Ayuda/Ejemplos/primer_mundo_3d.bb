; El primer mundo en 3D
; Tema: world
; Lo mínimo para ver algo en 3D: pantalla, cámara, luz, un cubo y el bucle de dibujo.

Graphics3D 640,480,0,2
AppTitle "Primer mundo"
SetBuffer BackBuffer()

; Sin cámara no se ve nada. Se coloca hacia atrás para ver el centro.
camara=CreateCamera()
PositionEntity camara,0,2,-6
RotateEntity camara,15,0,0

; La luz viene de arriba y de lado; AmbientLight aclara las sombras.
luz=CreateLight()
RotateEntity luz,50,40,0
AmbientLight 70,70,70

cubo=CreateCube()
EntityColor cubo,255,140,0

alambre=False
While Not KeyHit(1)
	; Cada vuelta: mover las cosas...
	TurnEntity cubo,.5,1,0
	If KeyHit(57)
		alambre=Not alambre
		WireFrame alambre
	EndIf

	; ...resolver animaciones y choques, y dibujar la escena.
	UpdateWorld
	RenderWorld

	; Lo que es plano se dibuja después, encima de la escena.
	Text 10,10,"Triángulos dibujados: "+TrisRendered()
	Text 10,30,"Espacio: alambres   Escape: salir"
	Flip
Wend

; ClearWorld borra todo lo que se ha creado en la escena.
ClearWorld
End
