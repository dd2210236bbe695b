For b.Bola=Each Bola
	If b\x<0 Then Delete b
Next
Delete Each Bola
