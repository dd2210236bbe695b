; x
If a
	Flip
End Select
