While a Then
Wend
