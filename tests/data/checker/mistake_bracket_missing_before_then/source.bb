If (a=1 Then Print "x"
