For b.Bola=Each
Next
