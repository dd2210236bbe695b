; Cada pregunta: el texto, el número de la respuesta correcta y tres respuestas.
Const CuantasPreguntas=3

.Preguntas
Data "¿Cuántos lados tiene un hexágono?",2,"Cinco","Seis","Ocho"
Data "¿Qué río pasa por Sevilla?",3,"El Ebro","El Tajo","El Guadalquivir"
Data "¿Cuánto es 7 por 8?",1,"56","54","63"
