If a Then If b Then Print "1" Else Print "2" Else Print "3"
If a If b If c Print "todo"
