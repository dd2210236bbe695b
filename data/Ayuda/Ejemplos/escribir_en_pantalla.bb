; Textos en la pantalla
; Tema: text
; Escribe con varias fuentes, centra textos, mide su ancho y pide un nombre.

Graphics 640,480,0,2
AppTitle "Textos"

; Locate coloca, en píxeles, el cursor que usan Print, Write e Input.
Locate 20,20
Write "Primera palabra, "
Print "y esta sigue en la misma línea."
Locate 20,60
nombre$=Trim$(Input$("¿Cómo te llamas? "))
If nombre$="" Then nombre$="Nadie"

; Una fuente se carga con su nombre, su altura en píxeles y su estilo.
grande=LoadFont("Arial",48,True)
pequena=LoadFont("Arial",18,False,True)

; Los dos últimos valores de Text centran el texto en el punto.
SetFont grande
Color 255,200,0
Text 320,200,nombre$,True,True

; StringWidth mide el texto, para rodearlo con un marco.
medida=StringWidth(nombre$)
Color 0,160,255
Rect 320-medida/2-10,165,medida+20,70,False

SetFont pequena
Color 255,255,255
Text 320,260,"Tu nombre mide "+medida+" píxeles de ancho.",True
Text 320,290,"La letra más ancha de esta fuente, "+FontWidth()+".",True

Text 320,440,"Pulsa una tecla para salir.",True
WaitKey()
FreeFont grande
FreeFont pequena
End
