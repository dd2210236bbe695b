; x
Repeat
	Flip
Wend
