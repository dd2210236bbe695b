; Un modelo MD2 animado
; Tema: md2
; Carga un personaje MD2, si está el archivo, y cambia entre dos de sus animaciones.

Const Archivo$="personaje.md2",Piel$="personaje.bmp"

If FileType(Archivo$)<>1
	Print "Pon junto al programa un modelo llamado "+Archivo$
	Print "y, si la tiene, su textura: "+Piel$+"."
	WaitKey()
	End
EndIf

Graphics3D 640,480,0,2
AppTitle "Modelo MD2"
SetBuffer BackBuffer()
luz=CreateLight()
RotateEntity luz,30,30,0
camara=CreateCamera()
PositionEntity camara,0,10,-90

personaje=LoadMD2(Archivo$)
If personaje=0 Then RuntimeError "No se puede cargar "+Archivo$
If FileType(Piel$)=1
	textura=LoadTexture(Piel$)
	EntityTexture personaje,textura
EndIf

; Modo 1: repetir los fotogramas 0 a 39, a una décima por vuelta.
AnimateMD2 personaje,1,.1,0,39
corre=False

While Not KeyHit(1)
	If KeyHit(57)
		corre=Not corre
		; El último valor hace que pase poco a poco de un movimiento al otro.
		If corre Then AnimateMD2 personaje,1,.2,40,45,10 Else AnimateMD2 personaje,1,.1,0,39,10
	EndIf
	TurnEntity personaje,0,.5,0
	UpdateWorld
	RenderWorld
	Text 10,10,"Fotograma "+MD2AnimTime#(personaje)+" de "+MD2AnimLength(personaje)
	Text 10,450,"Espacio: cambiar de animación   Escape: salir"
	Flip
Wend
End
