; Lluvia de meteoritos: la nave se mueve con las flechas y esquiva lo que
; cae. El juego está repartido en tres archivos de un mismo proyecto.
Const Ancho=640,Alto=480

Include "Nave.bb"
Include "Meteoritos.bb"

Graphics Ancho,Alto,0,2
AppTitle "Lluvia de meteoritos"
SetBuffer BackBuffer()
SeedRnd MilliSecs()

NuevaNave(Ancho/2,Alto-40)
vidas=3

While Not KeyHit(1)
	Cls
	MoverNave()
	DibujarNave()
	If Rand(1,20)=1 Then NuevoMeteorito()
	vidas=vidas-MoverMeteoritos()
	Color 255,255,255
	Text 10,10,"Vidas: "+vidas
	If vidas<=0
		Text Ancho/2,Alto/2,"Fin del juego",True,True
		Flip
		WaitKey
		Exit
	EndIf
	Flip
Wend
End
