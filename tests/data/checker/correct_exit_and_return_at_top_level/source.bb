Exit
Return
Stop
