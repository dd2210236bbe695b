; x
If a
	Flip
Forever
