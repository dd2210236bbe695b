For i=1 To 10
	Print i
Next
For x#=10.5 To -1 Step -.5
	For y=a(1) To b\c
		Plot x,y
	Next
Next
For i=1To 3 Print i Next
