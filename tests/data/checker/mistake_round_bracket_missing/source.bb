Print Sin(45
Next
