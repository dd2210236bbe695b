Print (a+b ; )
