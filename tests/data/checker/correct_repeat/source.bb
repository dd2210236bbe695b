Repeat
	Flip
Until KeyHit(1)
Repeat Until MouseHit(1)
Repeat
	Exit
Forever
