If a Then Print 1 Else Print 2 Else Print 3
