For
Next
