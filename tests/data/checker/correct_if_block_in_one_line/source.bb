If a : Print "x" : Else : Print "y" : EndIf
If a Then : Print "x" : EndIf
