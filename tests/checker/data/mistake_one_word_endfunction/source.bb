Function f()
EndFunction
