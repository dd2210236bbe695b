While a
Flip
