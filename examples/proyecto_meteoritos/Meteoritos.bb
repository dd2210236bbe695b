; Los meteoritos: cada uno es un objeto que cae hasta salir de la pantalla.
Type Meteorito
	Field x#,y#
	Field caida#
	Field radio
End Type

Function NuevoMeteorito()
	m.Meteorito=New Meteorito
	m\radio=Rand(6,20)
	m\x=Rnd(Ancho)
	m\y=-m\radio
	m\caida=Rnd(2,6)
End Function

; Devuelve cuántos meteoritos han alcanzado la nave.
Function MoverMeteoritos()
	golpes=0
	For m.Meteorito=Each Meteorito
		m\y=m\y+m\caida
		Color 200,150,90
		Oval m\x-m\radio,m\y-m\radio,m\radio*2,m\radio*2,True
		If Abs(m\x-nave_x)<m\radio+MedioLado And Abs(m\y-nave_y)<m\radio+MedioLado
			golpes=golpes+1
			Delete m
		Else
			If m\y>Alto+m\radio Then Delete m
		EndIf
	Next
	Return golpes
End Function
