Select a
Case 1
