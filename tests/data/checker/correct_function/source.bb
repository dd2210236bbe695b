Print Doble(4)
Function Doble(n)
	Return n*2
End Function
Function Nombre$(p.Jugador,veces=1)
	Return p\nombre$
End Function
Function Crear.Jugador()
	j.Jugador=New Jugador
	Return j
End Function
Function Mitad#(x#) Return x/2 End Function
