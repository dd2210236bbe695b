; Cuenta hacia atrás y lanza un cohete.
Graphics 640,480,0,2
AppTitle "Cohete"
SetBuffer BackBuffer()

altura#=400
velocidad#=0
cuenta=180

While Not KeyHit(1)
	If cuenta>0
		cuenta=cuenta-1
	Else
		velocidad=velocidad+.05
		altura=altura-velocidad
		If altura<-60
			altura=400
			velocidad=0
			cuenta=180
	EndIf

	Cls
	Color 220,220,230
	Rect 310,altura,20,60
	Color 255,255,0
	If cuenta>0 Then Text 320,20,1+cuenta/60,True Else Text 320,20,"¡Despegue!",True
	Flip
Wend

; Fuera de la pantalla no queda nada que dibujar.
EndGraphics
End
