If aPrint "x"
If b
EndIfEndIf