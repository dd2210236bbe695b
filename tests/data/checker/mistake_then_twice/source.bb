If a Then Then Print "x"
