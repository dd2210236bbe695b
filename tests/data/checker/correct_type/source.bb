Type Jugador
	Field nombre$,vidas
	; una lista de objetos
	Field x#,y#
	Field arma.Arma,puntos[10]

	Field a : Field b
End Type
Type Vacio
End Type
