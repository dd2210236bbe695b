Type nave
	Field x#, y#
End Type

Function Mover(n.nave, paso%)
	n\x = n\x + paso * 1.5e-3 // avanza
End Function
