  process a()
	process b()
"process c()"
// process d()
;type E
/*
process f()
type G
*/
process h
type I ; x