Print "x"
Case 1
