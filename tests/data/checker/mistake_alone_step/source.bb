Print "x"
Step
