If Then Print "x"
