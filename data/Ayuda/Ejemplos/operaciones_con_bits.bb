; Operadores y bits
; Tema: operator
; Usa And, Or, Xor y los desplazamientos para guardar varios interruptores en un entero.

; Cada interruptor es un bit: 1, 2, 4, 8...
Const Llave=1,Linterna=2,Mapa=4,Cuerda=8

; Or enciende bits, y And pregunta por ellos.
mochila=Llave Or Mapa
Print "Mochila: "+Right$(Bin$(mochila),4)
If mochila And Mapa Then Print "Llevas el mapa."
If (mochila And Cuerda)=0 Then Print "No llevas la cuerda."

; Xor cambia un bit: si estaba encendido, lo apaga.
mochila=mochila Xor Llave
Print "Sin la llave: "+Right$(Bin$(mochila),4)
mochila=mochila Xor Llave
Print "Con la llave: "+Right$(Bin$(mochila),4)
Print

; Shl y Shr mueven los bits a la izquierda y a la derecha.
Print "1 Shl 5 es "+(1 Shl 5)
Print "40 Shr 3 es "+(40 Shr 3)
; Con negativos, Sar conserva el signo y Shr no.
Print "-40 Sar 3 es "+(-40 Sar 3)
Print "-40 Shr 3 es "+(-40 Shr 3)
Print

; Un color ARGB son cuatro números en uno solo.
argb=(255 Shl 24) Or (200 Shl 16) Or (100 Shl 8) Or 50
Print "Color: $"+Hex$(argb)
Print "Su parte verde es "+((argb Shr 8) And 255)
Print

; Mod da el resto; Sgn y Abs, el signo y el valor sin él.
Print "17 Mod 5 es "+(17 Mod 5)
Print "Sgn(-8) es "+Sgn(-8)+" y Abs(-8) es "+Abs(-8)
Print "Not 0 es "+(Not 0)

WaitKey()
End
