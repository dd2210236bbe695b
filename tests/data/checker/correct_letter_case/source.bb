IF a THEN
	wHILE b
	WEND
endif
FUNCTION f()
eND   fUNCTION
