; Lee una tabla de líneas Data, la ordena y la dibuja con barras.
Const Ancho=640,Alto=480

Type Mes
	Field nombre$
	Field lluvia
End Type

Graphics Ancho,Alto,0,2
AppTitle "Litros de lluvia"

; La tabla termina con un nombre vacío.
Restore lluvias
Read nombre$
While nombre$<>""
	Read litros
	ColocarMes(nombre$,litros)
	total=total+litros
	meses=meses+1
	Read nombre$
Wend

Cls
y=20
For m.Mes=Each Mes
	Color 60,120,255
	Rect 120,y,m\lluvia*4,20
	Color 255,255,255
	Text 10,y+2,m\nombre$
	Text 130+m\lluvia*4,y+2,m\lluvia
	y=y+30
Next
Text 10,y+20,"Total: "+total+" litros. Media: "+total/meses+" litros al mes."
Text 10,y+50,"Pulsa una tecla para salir."
WaitKey()
End

; Pone el mes nuevo delante del primero que tiene menos lluvia.
Function ColocarMes(nombre$,litros)
	nuevo.Mes=New Mes
	nuevo\nombre$=nombre$
	nuevo\lluvia=litros
	For otro.Mes=Each Mes
		If otro\lluvia<litros
			Insert nuevo Before otro
			Return
		EndIf
	Next
End Function

.lluvias
Data "Enero",33,"Febrero",35,"Marzo",25,"Abril",45
Data "Mayo",50,"Junio",21,"Julio",12,"Agosto",10
Data "Septiembre",22,"Octubre",60,"Noviembre",58,"Diciembre",51
Data ""
