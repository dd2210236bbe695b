; Tipos y listas de objetos
; Tema: object
; Crea, recorre, reordena y borra objetos de un tipo propio.

; Un tipo es como una ficha: dice qué campos tiene cada objeto.
Type Enemigo
	Field nombre$
	Field vida
End Type

; New crea un objeto y lo pone al final de la lista de su tipo.
e.Enemigo=New Enemigo
e\nombre$="Murciélago" : e\vida=10
e=New Enemigo
e\nombre$="Ogro" : e\vida=80
e=New Enemigo
e\nombre$="Esqueleto" : e\vida=35
Mostrar("Al empezar:")

; Insert cambia un objeto de lugar en la lista.
Insert e Before First Enemigo
Mostrar("Con el último en primer lugar:")

; Un hechizo quita 40 a todos; quien se queda sin vida desaparece.
For e=Each Enemigo
	e\vida=e\vida-40
	If e\vida<=0 Then Delete e
Next
Mostrar("Después del hechizo:")

; Delete Each vacía la lista; First da entonces Null.
Delete Each Enemigo
If First Enemigo=Null Then Print "No queda nadie."

WaitKey()
End

Function Mostrar(titulo$)
	Print titulo$
	For uno.Enemigo=Each Enemigo
		Print "   "+uno\nombre$+", vida "+uno\vida
	Next
End Function
