Print "x"
Until a
