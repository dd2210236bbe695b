Print (a
Next
Print "x
