; Mensajes por la red
; Tema: network
; Envía mensajes UDP de un flujo a otro dentro del mismo equipo y los lee al llegar.

Const Puerto=9050

; El flujo que escucha necesita un puerto conocido; el otro usa uno libre.
oyente=CreateUDPStream(Puerto)
emisor=CreateUDPStream()
If oyente=0 Or emisor=0 Then RuntimeError "No se puede usar la red."

; Una dirección IP es un entero; esta, 127.0.0.1, es siempre el propio equipo.
casa=(127 Shl 24) Or 1
Print "Se envía a "+DottedIP$(casa)+", puerto "+Puerto+"."

; Se espera cada mensaje un segundo como mucho.
UDPTimeouts 1000

Repeat
	frase$=Input$("Mensaje (vacío para terminar): ")
	If frase$="" Then Exit

	; Primero se escribe en el flujo y después se envía todo junto.
	WriteInt emisor,Len(frase$)
	WriteLine emisor,frase$
	SendUDPMsg emisor,casa,Puerto

	; RecvUDPMsg devuelve la IP de quien lo envía, o 0 si no llega nada.
	origen=RecvUDPMsg(oyente)
	If origen=0
		Print "No ha llegado."
	Else
		letras=ReadInt(oyente)
		texto$=ReadLine$(oyente)
		Print "De "+DottedIP$(origen)+", puerto "+UDPMsgPort(oyente)+":"
		Print "   "+texto$+" ("+letras+" letras)"
	EndIf
Forever

CloseUDPStream oyente
CloseUDPStream emisor
End
