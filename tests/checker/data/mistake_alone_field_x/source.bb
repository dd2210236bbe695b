Print "x"
Field x
