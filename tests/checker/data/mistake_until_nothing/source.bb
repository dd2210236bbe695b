Repeat
Until
