; x
While a
	Flip
End Function
