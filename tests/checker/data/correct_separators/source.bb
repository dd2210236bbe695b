::
 : Print "x" :
:
