; Trabajar con textos
; Tema: string
; Cuenta, busca, corta y da la vuelta a las palabras de una frase.

frase$="  La ruta nos aporto otro paso natural  "
frase$=Trim$(frase$)
Print frase$
Print "Tiene "+Len(frase$)+" caracteres."

; Instr busca una parte; 0 quiere decir que no está.
lugar=Instr(frase$,"paso")
If lugar>0 Then Print "La palabra paso empieza en el carácter "+lugar+"."

; Replace cambia todas las apariciones.
juntas$=Lower$(Replace$(frase$," ",""))
Print "Al revés: "+AlReves$(juntas$)
If juntas$=AlReves$(juntas$) Then Print "¡Se lee igual al derecho y al revés!"
Print

; Se corta la frase por los espacios, palabra a palabra.
resto$=frase$+" "
While resto$<>""
	lugar=Instr(resto$," ")
	palabra$=Left$(resto$,lugar-1)
	resto$=Mid$(resto$,lugar+1)
	; LSet la deja siempre con el mismo ancho.
	Print LSet$(palabra$,10)+String$("*",Len(palabra$))
Wend
Print

; Asc da el código de un carácter y Chr hace lo contrario.
secreto$=""
For i=1 To Len(frase$)
	secreto$=secreto$+Chr$(Asc(Mid$(frase$,i,1))+1)
Next
Print "En clave: "+secreto$

WaitKey()
End

Function AlReves$(texto$)
	vuelto$=""
	For i=Len(texto$) To 1 Step -1
		vuelto$=vuelto$+Mid$(texto$,i,1)
	Next
	Return vuelto$
End Function
