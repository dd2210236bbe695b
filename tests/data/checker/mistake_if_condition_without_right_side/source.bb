If a = Then Print "x"
