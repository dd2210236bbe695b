If a Then Print "x" EndIf
If a Then Print "x" : EndIf
If a Then If b Then Print "x" EndIf : EndIf
