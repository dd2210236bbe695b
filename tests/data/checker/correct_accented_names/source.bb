año=1
If año=1 Then Print "ñandú"
