Print "x"
ElseIf a
