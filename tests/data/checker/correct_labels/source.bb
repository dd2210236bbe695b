.inicio Print "x"
.fin
If a Then Goto inicio Else Gosub fin
