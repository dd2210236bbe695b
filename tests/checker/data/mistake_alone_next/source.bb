Print "x"
Next
