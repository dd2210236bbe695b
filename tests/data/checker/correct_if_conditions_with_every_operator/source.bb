If a=1 And b<>2 Or Not c>=3 Xor d=<4 Print "x"
If a Mod 2=1 Print "impar"
If a Shl 1 > b Shr 2 Or a Sar 3 < ~b Print "x"
If Abs x-3<2^4/5 Print "x"
If Sgn(x)=-1 Print "x"
If Int(x)+Float(y)=Int z Print "x"
If Str$(x)="1" Print Str x
If First Bola<>Null Delete First Bola
If Last Bola=Null p.Bola=New Bola
If Before p=Null And After p<>Null Delete p
If Object.Bola(h)=Null Print "x"
If Handle(p)=0 Print "x"
If a[3]>$FF And b=%101 Print "x"
If True Print Pi
If a==1 Print "x"
