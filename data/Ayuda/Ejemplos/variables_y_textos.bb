; Variables y textos
; Tema: declaration
; Muestra los tres tipos de variable, las constantes y cómo se unen textos y números.

; Una constante tiene nombre y un valor que no cambia en todo el programa.
Const VidasAlEmpezar=3

; La marca del final del nombre dice qué guarda una variable:
; sin marca (o con %) un entero, con # un número con decimales, con $ un texto.
Local vidas=VidasAlEmpezar
Local energia#=87.5
Local nombre$="Ana"

; + suma números y también une textos; los números se vuelven texto solos.
Print nombre$+" tiene "+vidas+" vidas y "+energia#+" de energía."

; Una variable toma un valor nuevo con =, también a partir del que tenía.
vidas=vidas-1
energia#=energia#/2
Print "Después del golpe le quedan "+vidas+" vidas y "+energia#+" de energía."

; Dividir dos enteros da un entero; con un decimal, el resultado tiene decimales.
Print "7/2 es "+7/2+", pero 7/2.0 es "+7/2.0

; Una variable que nunca ha recibido un valor vale 0, o "" si es de texto.
Print "Sin estrenar: "+monedas+" monedas."

Print
Print "Pulsa una tecla para salir."
WaitKey()
End
