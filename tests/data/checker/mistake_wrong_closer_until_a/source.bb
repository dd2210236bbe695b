; x
While a
	Flip
Until a
