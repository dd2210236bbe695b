If a Then For i=1 To 3 : Print i : Next
If a Then For i=1 To 3
	Print i
Next : Print "4"
If a Then While b : b=b-1 : Wend Else Print "no"
