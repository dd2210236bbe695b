; Una charla entre jugadores
; Tema: multiplayer
; Entra en una partida en red y deja que los jugadores se escriban.

Const Charla=1

; El programa pregunta él mismo si se crea una partida o se busca otra.
resultado=StartNetGame()
If resultado=0
	Print "No se ha entrado en ninguna partida."
	WaitKey()
	End
EndIf
If resultado=2 Then Print "Partida creada." Else Print "Te has unido a la partida."

yo=CreateNetPlayer(Input$("Tu nombre: "))
If yo=0 Then RuntimeError "No se puede crear el jugador."
Print "Escribe y pulsa Intro. Escape para salir."

linea$=""
Repeat
	; GetKey no espera: da 0 si no se ha pulsado nada.
	tecla=GetKey()
	If tecla=13
		; Para el jugador 0, es decir, para todos los demás.
		SendNetMsg(Charla,linea$,yo,0)
		Print "Tú: "+linea$
		linea$=""
	ElseIf tecla>=32
		linea$=linea$+Chr$(tecla)
	EndIf

	; Se leen todos los mensajes que hayan llegado.
	While RecvNetMsg()
		quien$=NetPlayerName$(NetMsgFrom())
		Select NetMsgType()
			Case Charla
				Print quien$+": "+NetMsgData$()
			Case 100
				Print "* Entra "+quien$
			Case 101
				Print "* Se va "+quien$
			Case 200
				Print "* La partida ha terminado."
				tecla=27
		End Select
	Wend
	Delay 10
Until tecla=27

DeleteNetPlayer yo
StopNetGame
End
