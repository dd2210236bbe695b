Print 1

Next
