Print 1
Print 2
Next
