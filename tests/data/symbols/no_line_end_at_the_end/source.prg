type Punto
process ultimo