For i=1 To 9 : If a(i) Then Exit : Next
Repeat : If KeyHit(1) Exit : Forever
While a : If b If c Exit : Wend
