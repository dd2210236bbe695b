If a
Else	 If b
End 	 If
