; x
Repeat
Flip
