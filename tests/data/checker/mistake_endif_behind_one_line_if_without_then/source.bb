If KeyHit(1) End
EndIf
