If a Then Print "x"
Else
