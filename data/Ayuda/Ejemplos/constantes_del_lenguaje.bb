; Las constantes del lenguaje
; Tema: constant
; Usa Pi, True, False y Null en cuentas, condiciones y variables de tipo.

Type Moneda
	Field valor
End Type

; Pi sirve para medir círculos. Sin y Cos, en cambio, quieren grados.
radio#=2.5
Print "Perímetro: "+2*Pi*radio#
Print "Área:      "+Pi*radio#*radio#
; De radianes a grados:
Print "Un radián son "+180/Pi+" grados."
Print

; Una comparación da True, que es 1, o False, que es 0.
Print "3<5 vale "+(3<5)+" y 3>5 vale "+(3>5)+"."
sigue=True
vueltas=0
While sigue
	vueltas=vueltas+1
	If vueltas=4 Then sigue=False
Wend
Print "El bucle ha dado "+vueltas+" vueltas."
Print

; Una variable de tipo vale Null hasta que apunta a un objeto.
m.Moneda=Null
If m=Null Then Print "Todavía no hay moneda."
m=New Moneda
m\valor=5
If m<>Null Then Print "Hay una moneda de "+m\valor+"."

; Después de borrarlo, la variable vuelve a no apuntar a nada.
Delete m
If m=Null Then Print "Ya no está."

WaitKey()
End
