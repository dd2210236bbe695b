; Un archivo de números
; Tema: stream
; Escribe valores de varios tipos en un archivo y los lee en el mismo orden.

Const Archivo$="numeros.dat"

salida=WriteFile(Archivo$)
If salida=0 Then RuntimeError "No se puede crear "+Archivo$

; Cada orden ocupa un número fijo de bytes.
WriteByte salida,200
WriteShort salida,50000
WriteInt salida,-123456
WriteFloat salida,3.25
; WriteString guarda delante la longitud, así que el texto puede tener de todo.
WriteString salida,"Hola"
For i=1 To 5
	WriteInt salida,i*i
Next
CloseFile salida

; Al leer hay que pedir los mismos tipos en el mismo orden.
entrada=ReadFile(Archivo$)
If entrada=0 Then RuntimeError "No se puede leer "+Archivo$
Print "Byte:    "+ReadByte(entrada)
Print "Corto:   "+ReadShort(entrada)
Print "Entero:  "+ReadInt(entrada)
Print "Decimal: "+ReadFloat#(entrada)
Print "Texto:   "+ReadString$(entrada)
Print "Leídos "+FilePos(entrada)+" bytes; quedan "+ReadAvail(entrada)+"."

; Eof dice cuándo se ha llegado al final.
While Not Eof(entrada)
	Write ReadInt(entrada)+" "
Wend
Print
CloseFile entrada
DeleteFile Archivo$

WaitKey()
End
