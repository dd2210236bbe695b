Print ((a+(b(1,2)))*(c[d(3)]))
x=f(a And Not b,New T,First T,"(",Int(3.5))
