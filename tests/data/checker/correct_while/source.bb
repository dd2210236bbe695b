While Not KeyHit(1)
	Flip
Wend
While Not KeyHit(1) : Wend
