; Ver un vídeo
; Tema: movie
; Reproduce un vídeo en mitad de la pantalla, si está el archivo.

Const Archivo$="intro.avi"

Graphics 640,480,0,2
AppTitle "Vídeo"

; Sin el archivo no hay nada que ver: mejor decirlo que fallar.
If FileType(Archivo$)<>1
	Print "Pon junto al programa un vídeo llamado "+Archivo$+"."
	WaitKey()
	End
EndIf
pelicula=OpenMovie(Archivo$)
If pelicula=0 Then RuntimeError "No se puede abrir "+Archivo$

; Se calcula dónde empieza para que quede centrado.
x=(GraphicsWidth()-MovieWidth(pelicula))/2
y=(GraphicsHeight()-MovieHeight(pelicula))/2

SetBuffer BackBuffer()
; Dura hasta que acaba o se pulsa Escape.
While MoviePlaying(pelicula) And KeyHit(1)=0
	Cls
	DrawMovie(pelicula,x,y)
	Text 10,450,"Escape para saltarlo"
	Flip
Wend
CloseMovie pelicula
End
