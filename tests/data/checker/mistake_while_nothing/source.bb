While
Wend
