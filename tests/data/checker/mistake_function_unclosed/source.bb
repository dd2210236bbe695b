Function f()
Return
