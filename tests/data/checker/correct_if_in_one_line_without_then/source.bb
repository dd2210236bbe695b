If KeyHit(1) End
If a b=1
If a=1 b=2
If Not KeyDown(1) Print "nada" Else End
If (a+b)*2>10 Print "mucho"
If a(1,2)\x#<=-3.5 b$="c"
If p.Jugador=Null Return
