; x
While a
	Flip
Next
