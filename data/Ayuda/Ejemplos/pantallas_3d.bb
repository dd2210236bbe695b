; Elegir la pantalla 3D
; Tema: graphics3d
; Pregunta al equipo qué pantallas 3D tiene y abre una de ellas.

If Windowed3D()
	Print "Este equipo puede mostrar 3D en una ventana."
Else
	Print "Este equipo solo muestra 3D a pantalla completa."
EndIf
Print

; Se prueban las medidas más corrientes y se recuerda la última que existe.
Repeat
	Read ancho,alto
	If ancho=0 Then Exit
	If GfxMode3DExists(ancho,alto,32)
		Print ancho+" por "+alto+": sí"
		elegido=ancho
		elegido_alto=alto
	Else
		Print ancho+" por "+alto+": no"
	EndIf
Forever

If elegido=0
	Print "No hay ninguna pantalla 3D de 32 bits."
	WaitKey()
	End
EndIf
Print "Pulsa V para una ventana u otra tecla para pantalla completa."
tecla$=Upper$(Chr$(WaitKey()))

; Modo 2, en una ventana; modo 1, pantalla completa.
If tecla$="V" And Windowed3D()
	Graphics3D 640,480,0,2
Else
	Graphics3D elegido,elegido_alto,32,1
EndIf

SetBuffer BackBuffer()
camara=CreateCamera()
PositionEntity camara,0,0,-4
luz=CreateLight()
bola=CreateSphere(16)
RenderWorld
Text 10,10,GraphicsWidth()+" por "+GraphicsHeight()+", "+GraphicsDepth()+" bits"
Flip
WaitKey()
EndGraphics
End

Data 640,480,800,600,1024,768,1280,1024,1920,1080,0,0
