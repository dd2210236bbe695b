; Números al azar
; Tema: math
; Tira mil veces un dado, dibuja cuánto sale cada cara y repite la suerte con la semilla.

Graphics 640,480,0,2
AppTitle "Un dado"

Dim veces(6)

; Con MilliSecs() como semilla, cada vez que se arranca sale otra cosa.
SeedRnd MilliSecs()
semilla=RndSeed()
For tirada=1 To 1000
	cara=Rand(1,6)
	veces(cara)=veces(cara)+1
Next

For cara=1 To 6
	Color 40*cara,255-40*cara,200
	Rect 60+cara*70,400-veces(cara),50,veces(cara)
	Color 255,255,255
	Text 85+cara*70,410,cara,True
	Text 85+cara*70,380-veces(cara),veces(cara),True
Next

; La misma semilla da siempre la misma serie de números.
Locate 10,10
SeedRnd 1234
Print "Con la semilla 1234: "+Rand(1,100)+" "+Rand(1,100)+" "+Rand(1,100)
SeedRnd 1234
Print "Y otra vez:          "+Rand(1,100)+" "+Rand(1,100)+" "+Rand(1,100)

; Rnd da números con decimales.
SeedRnd semilla
Print "Entre -1 y 1: "+Rnd#(-1,1)
Print "Pulsa una tecla para salir."
WaitKey()
End
