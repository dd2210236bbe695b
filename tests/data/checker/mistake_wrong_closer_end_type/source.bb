; x
Select a
	Flip
End Type
