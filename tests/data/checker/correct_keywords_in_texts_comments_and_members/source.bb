Print "If Then Next Wend ( [ End Function"
; If While ( "
x=p\type : y.next=z ; Next )
