Print "x"
Wend
