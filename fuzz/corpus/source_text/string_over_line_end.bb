Print "abierta
Print 2
"