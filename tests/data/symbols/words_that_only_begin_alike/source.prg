processor = 1
processes(3)
typed = 2
types = 3
  process Dentro()
	type Dentro
// process Comentado()
; type Comentado
/*
process Comentado2()
type Comentado2
*/
"process Texto"
endprocess
