; La nave del jugador.
Global nave_x,nave_y
Const Velocidad=5,MedioLado=12

Function NuevaNave(x,y)
	nave_x=x
	nave_y=y
End Function

Function MoverNave()
	If KeyDown(203) Then nave_x=nave_x-Velocidad
	If KeyDown(205) Then nave_x=nave_x+Velocidad
	If nave_x<MedioLado Then nave_x=MedioLado
	If nave_x>Ancho-MedioLado Then nave_x=Ancho-MedioLado
End Function

Function DibujarNave()
	Color 90,200,255
	Rect nave_x-MedioLado,nave_y-MedioLado,MedioLado*2,MedioLado*2,True
End Function
