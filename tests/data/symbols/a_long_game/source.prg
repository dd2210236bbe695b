program juego_largo;
global
 int puntos = 0;
end

process meteorito.0
begin
  process_interno();
end
type
process
	type no
Process  dos_blancos ( a )
PROCESS enemigo_2(x, y)
private int angulo_2;
begin
  loop
    // process de mentira
    x = x + 1;
    frame;
  end
end

Type Explosión3 ; comentario
  int vida;
end

/* process enemigo_4() */
processor_4 = 1;
types_4 = 3;
PROCESS menú_5(x, y)
private int angulo_5;
begin
  loop
    // process de mentira
    x = x + 1;
    frame;
  end
end

  process disparo_sangrado_6()
end
PROCESS música_7(x, y)
private int angulo_7;
begin
  loop
    // process de mentira
    x = x + 1;
    frame;
  end
end

PROCESS jugador_8(x, y)
private int angulo_8;
begin
  loop
    // process de mentira
    x = x + 1;
    frame;
  end
end

PROCESS música_9(x, y)
private int angulo_9;
begin
  loop
    // process de mentira
    x = x + 1;
    frame;
  end
end

process explosión.10
begin
  process_interno();
end
/* process enemigo_11() */
processor_11 = 1;
types_11 = 3;
PROCESS sonido_12(x, y)
private int angulo_12;
begin
  loop
    // process de mentira
    x = x + 1;
    frame;
  end
end

PROCESS jugador_13(x, y)
private int angulo_13;
begin
  loop
    // process de mentira
    x = x + 1;
    frame;
  end
end

Type Fondo14 ; comentario
  int vida;
end

process música.15
begin
  process_interno();
end
/* process explosión_16() */
processor_16 = 1;
types_16 = 3;
/* process planeta_17() */
processor_17 = 1;
types_17 = 3;
PROCESS marcador_18(x, y)
private int angulo_18;
begin
  loop
    // process de mentira
    x = x + 1;
    frame;
  end
end

Type Menú19 ; comentario
  int vida;
end

/* process explosión_20() */
processor_20 = 1;
types_20 = 3;
/* process disparo_21() */
processor_21 = 1;
types_21 = 3;
/* process enemigo_22() */
processor_22 = 1;
types_22 = 3;
  process menú_sangrado_23()
end
Type Música24 ; comentario
  int vida;
end

/* process niño_25() */
processor_25 = 1;
types_25 = 3;
Type Niño26 ; comentario
  int vida;
end

process planeta.27
begin
  process_interno();
end
type
process
	type no
Process  dos_blancos ( a )
PROCESS jugador_29(x, y)
private int angulo_29;
begin
  loop
    // process de mentira
    x = x + 1;
    frame;
  end
end

/* process planeta_30() */
processor_30 = 1;
types_30 = 3;
Type Árbol31 ; comentario
  int vida;
end

Type Niño32 ; comentario
  int vida;
end

PROCESS disparo_33(x, y)
private int angulo_33;
begin
  loop
    // process de mentira
    x = x + 1;
    frame;
  end
end

process música.34
begin
  process_interno();
end
process meteorito.35
begin
  process_interno();
end
  process árbol_sangrado_36()
end
type
process
	type no
Process  dos_blancos ( a )
/* process disparo_38() */
processor_38 = 1;
types_38 = 3;
Type Meteorito39 ; comentario
  int vida;
end

/* process escudo_40() */
processor_40 = 1;
types_40 = 3;
/* process árbol_41() */
processor_41 = 1;
types_41 = 3;
PROCESS niño_42(x, y)
private int angulo_42;
begin
  loop
    // process de mentira
    x = x + 1;
    frame;
  end
end

Type Disparo43 ; comentario
  int vida;
end

type
process
	type no
Process  dos_blancos ( a )
PROCESS disparo_45(x, y)
private int angulo_45;
begin
  loop
    // process de mentira
    x = x + 1;
    frame;
  end
end

type
process
	type no
Process  dos_blancos ( a )
Type Niño47 ; comentario
  int vida;
end

type
process
	type no
Process  dos_blancos ( a )
PROCESS escudo_49(x, y)
private int angulo_49;
begin
  loop
    // process de mentira
    x = x + 1;
    frame;
  end
end

Type Niño50 ; comentario
  int vida;
end

/* process marcador_51() */
processor_51 = 1;
types_51 = 3;
  process explosión_sangrado_52()
end
process enemigo.53
begin
  process_interno();
end
process planeta.54
begin
  process_interno();
end
  process jugador_sangrado_55()
end
  process sonido_sangrado_56()
end
process disparo.57
begin
  process_interno();
end
  process niño_sangrado_58()
end
process estrella.59
begin
  process_interno();
end