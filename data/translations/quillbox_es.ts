<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!-- SPDX-License-Identifier: GPL-3.0-or-later -->
<!-- What Quillbox says better than Qt's own Spanish: it is asked before qtbase_es. -->
<TS version="2.1" language="es_ES" sourcelanguage="en">
<context>
    <name>QAccessibleActionInterface</name>
    <message>
        <source>SetFocus</source>
        <translation>Enfocar</translation>
    </message>
    <message>
        <source>ShowMenu</source>
        <translation>Mostrar menú</translation>
    </message>
    <message>
        <source>Sets the focus</source>
        <translation>Da el foco</translation>
    </message>
    <message>
        <source>Decrease</source>
        <translation>Reducir</translation>
    </message>
    <message>
        <source>Decrease the value</source>
        <translation>Reduce el valor</translation>
    </message>
    <message>
        <source>Increase</source>
        <translation>Aumentar</translation>
    </message>
    <message>
        <source>Increase the value</source>
        <translation>Aumenta el valor</translation>
    </message>
    <message>
        <source>Toggle</source>
        <translation>Cambiar</translation>
    </message>
    <message>
        <source>Toggles the state</source>
        <translation>Cambia el estado</translation>
    </message>
    <message>
        <source>Triggers the action</source>
        <translation>Realiza la acción</translation>
    </message>
</context>
<context>
    <name>QColorDialog</name>
    <message>
        <source>Select Color</source>
        <translation>Elegir color</translation>
    </message>
    <message>
        <source>&amp;Val:</source>
        <translation>Va&amp;lor:</translation>
    </message>
    <message>
        <source>Cursor at %1, %2
Press ESC to cancel</source>
        <translation>Cursor en %1, %2
Pulsa Escape para cancelar</translation>
    </message>
</context>
<context>
    <name>QComboBox</name>
    <message>
        <source>Open the combo box selection popup</source>
        <translation>Abrir la lista desplegable</translation>
    </message>
</context>
<context>
    <name>QCupsJobWidget</name>
    <message>
        <source>Job Control</source>
        <translation>Control del trabajo</translation>
    </message>
    <message>
        <source>Second Shift (16:00 to 23:59)</source>
        <translation>Segundo turno (16:00 a 23:59)</translation>
    </message>
    <message>
        <source>Third Shift (00:00 to 07:59)</source>
        <translation>Tercer turno (00:00 a 07:59)</translation>
    </message>
    <message>
        <source>Weekend (Saturday to Sunday)</source>
        <translation>Fin de semana (sábado y domingo)</translation>
    </message>
    <message>
        <source>Specific Time</source>
        <translation>Hora concreta</translation>
    </message>
    <message>
        <source>Hold Indefinitely</source>
        <translation>Retener indefinidamente</translation>
    </message>
</context>
<context>
    <name>QErrorMessage</name>
    <message>
        <source>Critical Error:</source>
        <translation>Error crítico:</translation>
    </message>
    <message>
        <source>Information:</source>
        <translation>Información:</translation>
    </message>
</context>
<context>
    <name>QFile</name>
    <message>
        <source>Destination file is the same file.</source>
        <translation>El archivo de destino es el mismo.</translation>
    </message>
    <message>
        <source>Error while renaming.</source>
        <translation>Error al cambiar el nombre.</translation>
    </message>
    <message>
        <source>Cannot open %1 for input</source>
        <translation>No se puede abrir %1 para leerlo</translation>
    </message>
    <message>
        <source>Cannot open for output</source>
        <translation>No se puede abrir para escribir</translation>
    </message>
    <message>
        <source>Will not rename sequential file using block copy</source>
        <translation>No se cambia el nombre de un archivo secuencial copiándolo por bloques</translation>
    </message>
    <message>
        <source>Cannot open destination file: %1</source>
        <translation>No se puede abrir el archivo de destino: %1</translation>
    </message>
    <message>
        <source>Cannot create %1 for output: %2</source>
        <translation>No se puede crear %1 para escribir: %2</translation>
    </message>
    <message>
        <source>Failure to write block: %1</source>
        <translation>Fallo al escribir un bloque: %1</translation>
    </message>
    <message>
        <source>Error while renaming: %1</source>
        <translation>Error al cambiar el nombre: %1</translation>
    </message>
    <message>
        <source>Cannot open for output: %1</source>
        <translation>No se puede abrir para escribir: %1</translation>
    </message>
</context>
<context>
    <name>QFileDevice</name>
    <message>
        <source>No file engine available</source>
        <translation>No hay acceso al archivo</translation>
    </message>
</context>
<context>
    <name>QFileDialog</name>
    <message>
        <source>File &amp;name:</source>
        <translation>&amp;Nombre de archivo:</translation>
    </message>
    <message>
        <source>Files of type:</source>
        <translation>Archivos de tipo:</translation>
    </message>
    <message>
        <source>All Files (*)</source>
        <translation>Todos los archivos (*)</translation>
    </message>
    <message>
        <source>Show &amp;hidden files</source>
        <translation>Mostrar los arc&amp;hivos ocultos</translation>
    </message>
    <message>
        <source>Directory:</source>
        <translation>Carpeta:</translation>
    </message>
    <message>
        <source>Directories</source>
        <translation>Carpetas</translation>
    </message>
    <message>
        <source>Find Directory</source>
        <translation>Buscar carpeta</translation>
    </message>
    <message>
        <source>Parent Directory</source>
        <translation>Carpeta superior</translation>
    </message>
    <message>
        <source>Go to the parent directory</source>
        <translation>Ir a la carpeta superior</translation>
    </message>
    <message>
        <source>File Folder</source>
        <translation>Carpeta</translation>
    </message>
    <message>
        <source>Create New Folder</source>
        <translation>Crear carpeta</translation>
    </message>
    <message>
        <source>Create a New Folder</source>
        <translation>Crear una carpeta</translation>
    </message>
    <message>
        <source>Go back</source>
        <translation>Volver atrás</translation>
    </message>
    <message>
        <source>Go forward</source>
        <translation>Ir adelante</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Adelante</translation>
    </message>
    <message>
        <source>Change to list view mode</source>
        <translation>Cambiar a la vista de lista</translation>
    </message>
    <message>
        <source>Change to detail view mode</source>
        <translation>Cambiar a la vista detallada</translation>
    </message>
    <message>
        <source>&amp;Choose</source>
        <translation>&amp;Elegir</translation>
    </message>
    <message>
        <source>%1 already exists.
Do you want to replace it?</source>
        <translation>El archivo %1 ya existe.
¿Quieres reemplazarlo?</translation>
    </message>
    <message>
        <source>%1
File not found.
Please verify the correct file name was given.</source>
        <translation>%1
No se ha encontrado el archivo.
Comprueba que el nombre es correcto.</translation>
    </message>
    <message>
        <source>%1
Directory not found.
Please verify the correct directory name was given.</source>
        <translation>%1
No se ha encontrado la carpeta.
Comprueba que el nombre es correcto.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is write protected.
Do you want to delete it anyway?</source>
        <translation>«%1» está protegido contra escritura.
¿Quieres borrarlo de todas formas?</translation>
    </message>
    <message>
        <source>Are you sure you want to delete &apos;%1&apos;?</source>
        <translation>¿Seguro que quieres borrar «%1»?</translation>
    </message>
    <message>
        <source>Could not delete directory.</source>
        <translation>No se ha podido borrar la carpeta.</translation>
    </message>
</context>
<context>
    <name>QFileSystemModel</name>
    <message>
        <source>Invalid filename</source>
        <translation>Nombre de archivo no válido</translation>
    </message>
    <message>
        <source>My Computer</source>
        <translation>Mi equipo</translation>
    </message>
    <message>
        <source>&lt;b&gt;The name &quot;%1&quot; can not be used.&lt;/b&gt;&lt;p&gt;Try using another name, with fewer characters or no punctuations marks.</source>
        <translation>&lt;b&gt;No se puede usar el nombre «%1».&lt;/b&gt;&lt;p&gt;Prueba con otro más corto o sin signos de puntuación.</translation>
    </message>
    <message>
        <source>%1 KB</source>
        <translation>%1 kB</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation>%1 MB</translation>
    </message>
    <message>
        <source>%1 GB</source>
        <translation>%1 GB</translation>
    </message>
    <message>
        <source>%1 TB</source>
        <translation>%1 TB</translation>
    </message>
    <message>
        <source>%1 byte(s)</source>
        <translation>%1 bytes</translation>
    </message>
</context>
<context>
    <name>QFontDatabase</name>
    <message>
        <source>Oblique</source>
        <translation>Oblicua</translation>
    </message>
    <message>
        <source>Extra Light</source>
        <translation>Extraligera</translation>
    </message>
    <message>
        <source>Extra Bold</source>
        <translation>Extranegrita</translation>
    </message>
    <message>
        <source>Thin</source>
        <translation>Fina</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>Media</translation>
    </message>
    <message>
        <source>Latin</source>
        <translation>Latino</translation>
    </message>
    <message>
        <source>Simplified Chinese</source>
        <translation>Chino simplificado</translation>
    </message>
    <message>
        <source>Traditional Chinese</source>
        <translation>Chino tradicional</translation>
    </message>
</context>
<context>
    <name>QFontDialog</name>
    <message>
        <source>Select Font</source>
        <translation>Elegir fuente</translation>
    </message>
    <message>
        <source>&amp;Font</source>
        <translation>&amp;Fuente</translation>
    </message>
    <message>
        <source>Font st&amp;yle</source>
        <translation>&amp;Estilo</translation>
    </message>
    <message>
        <source>Stri&amp;keout</source>
        <translation>Ta&amp;chado</translation>
    </message>
</context>
<context>
    <name>QIODevice</name>
    <message>
        <source>No such file or directory</source>
        <translation>No existe el archivo o la carpeta</translation>
    </message>
    <message>
        <source>Too many open files</source>
        <translation>Hay demasiados archivos abiertos</translation>
    </message>
    <message>
        <source>file to open is a directory</source>
        <translation>el archivo que se quiere abrir es una carpeta</translation>
    </message>
</context>
<context>
    <name>QImageReader</name>
    <message>
        <source>Unable to read image data</source>
        <translation>No se pueden leer los datos de la imagen</translation>
    </message>
    <message>
        <source>Invalid device</source>
        <translation>Dispositivo no válido</translation>
    </message>
    <message>
        <source>Unsupported image format</source>
        <translation>Formato de imagen no admitido</translation>
    </message>
</context>
<context>
    <name>QInputDialog</name>
    <message>
        <source>Enter a value:</source>
        <translation>Escribe un valor:</translation>
    </message>
</context>
<context>
    <name>QKeySequenceEdit</name>
    <message>
        <source>Press shortcut</source>
        <translation>Pulsa el atajo de teclado</translation>
    </message>
</context>
<context>
    <name>QLineEdit</name>
    <message>
        <source>Delete</source>
        <translation>Eliminar</translation>
    </message>
</context>
<context>
    <name>QMdiSubWindow</name>
    <message>
        <source>Unshade</source>
        <translation>Desplegar</translation>
    </message>
    <message>
        <source>Shade</source>
        <translation>Plegar</translation>
    </message>
    <message>
        <source>Restore Down</source>
        <translation>Restaurar</translation>
    </message>
</context>
<context>
    <name>QMessageBox</name>
    <message>
        <source>Show Details...</source>
        <translation>Mostrar detalles...</translation>
    </message>
    <message>
        <source>Hide Details...</source>
        <translation>Ocultar detalles...</translation>
    </message>
</context>
<context>
    <name>QPageSetupWidget</name>
    <message>
        <source>Landscape</source>
        <translation>Horizontal</translation>
    </message>
    <message>
        <source>Reverse landscape</source>
        <translation>Horizontal invertido</translation>
    </message>
    <message>
        <source>Paper source:</source>
        <translation>Origen del papel:</translation>
    </message>
    <message>
        <source>mm</source>
        <translation> mm</translation>
    </message>
    <message>
        <source>pt</source>
        <translation> pt</translation>
    </message>
    <message>
        <source>in</source>
        <translation> pulg.</translation>
    </message>
    <message>
        <source>P̸</source>
        <translation> P̸</translation>
    </message>
    <message>
        <source>DD</source>
        <translation> DD</translation>
    </message>
    <message>
        <source>CC</source>
        <translation> CC</translation>
    </message>
    <message>
        <source>Inches (in)</source>
        <translation>Pulgadas (pulg.)</translation>
    </message>
</context>
<context>
    <name>QPageSize</name>
    <message>
        <source>Architect D</source>
        <translation>Arquitecto D</translation>
    </message>
    <message>
        <source>Executive (7.5 x 10 in)</source>
        <translation>Ejecutivo (7,5 x 10 pulg.)</translation>
    </message>
    <message>
        <source>Executive (7.25 x 10.5 in)</source>
        <translation>Ejecutivo (7,25 x 10,5 pulg.)</translation>
    </message>
    <message>
        <source>Folio (8.27 x 13 in)</source>
        <translation>Folio (8,27 x 13 pulg.)</translation>
    </message>
    <message>
        <source>Fan-fold US (14.875 x 11 in)</source>
        <translation>Papel continuo EE. UU. (14,875 x 11 pulg.)</translation>
    </message>
    <message>
        <source>Fan-fold German (8.5 x 12 in)</source>
        <translation>Papel continuo alemán (8,5 x 12 pulg.)</translation>
    </message>
    <message>
        <source>Fan-fold German Legal (8.5 x 13 in)</source>
        <translation>Papel continuo alemán legal (8,5 x 13 pulg.)</translation>
    </message>
    <message>
        <source>Custom (%1in x %2in)</source>
        <translation>Personalizado (%1 x %2 pulg.)</translation>
    </message>
    <message>
        <source>%1 x %2 in</source>
        <translation>%1 x %2 pulg.</translation>
    </message>
    <message>
        <source>Statement</source>
        <translation>Media carta</translation>
    </message>
    <message>
        <source>Ledger / ANSI B</source>
        <translation>Doble carta / ANSI B</translation>
    </message>
    <message>
        <source>A4 Small</source>
        <translation>A4 pequeño</translation>
    </message>
    <message>
        <source>Envelope Chou 3</source>
        <translation>Sobre Chou 3</translation>
    </message>
    <message>
        <source>Envelope Chou 4</source>
        <translation>Sobre Chou 4</translation>
    </message>
    <message>
        <source>Envelope Italian</source>
        <translation>Sobre italiano</translation>
    </message>
    <message>
        <source>Envelope Personal</source>
        <translation>Sobre personal</translation>
    </message>
    <message>
        <source>Envelope Monarch</source>
        <translation>Sobre Monarch</translation>
    </message>
    <message>
        <source>Envelope US 9</source>
        <translation>Sobre EE. UU. 9</translation>
    </message>
    <message>
        <source>Envelope US 10</source>
        <translation>Sobre EE. UU. 10</translation>
    </message>
    <message>
        <source>Envelope US 11</source>
        <translation>Sobre EE. UU. 11</translation>
    </message>
    <message>
        <source>Envelope US 12</source>
        <translation>Sobre EE. UU. 12</translation>
    </message>
    <message>
        <source>Envelope US 14</source>
        <translation>Sobre EE. UU. 14</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>Reset</source>
        <translation>Restablecer</translation>
    </message>
    <message>
        <source>Restore Defaults</source>
        <translation>Restaurar valores predeterminados</translation>
    </message>
</context>
<context>
    <name>QPrintDialog</name>
    <message>
        <source>Print To File ...</source>
        <translation>Imprimir en un archivo...</translation>
    </message>
    <message>
        <source>Print to File (PDF)</source>
        <translation>Imprimir en un archivo (PDF)</translation>
    </message>
    <message>
        <source>Write PDF file</source>
        <translation>Escribir un archivo PDF</translation>
    </message>
    <message>
        <source>%1 is a directory.
Please choose a different file name.</source>
        <translation>%1 es una carpeta.
Elige otro nombre de archivo.</translation>
    </message>
    <message>
        <source>File %1 is not writable.
Please choose a different file name.</source>
        <translation>No se puede escribir en el archivo %1.
Elige otro nombre de archivo.</translation>
    </message>
    <message>
        <source>%1 already exists.
Do you want to overwrite it?</source>
        <translation>%1 ya existe.
¿Quieres sobrescribirlo?</translation>
    </message>
    <message>
        <source>Options &apos;Pages Per Sheet&apos; and &apos;Page Set&apos; cannot be used together.
Please turn one of those options off.</source>
        <translation>Las opciones «Páginas por hoja» y «Conjunto de páginas» no se pueden usar a la vez.
Desactiva una de las dos.</translation>
    </message>
    <message>
        <source>The &apos;From&apos; value cannot be greater than the &apos;To&apos; value.</source>
        <translation>El valor de «Desde» no puede ser mayor que el de «a».</translation>
    </message>
    <message>
        <source>Left to Right, Top to Bottom</source>
        <translation>De izquierda a derecha y de arriba abajo</translation>
    </message>
    <message>
        <source>Right to Left, Bottom to Top</source>
        <translation>De derecha a izquierda y de abajo arriba</translation>
    </message>
    <message>
        <source>Left to Right, Bottom to Top</source>
        <translation>De izquierda a derecha y de abajo arriba</translation>
    </message>
    <message>
        <source>Right to Left, Top to Bottom</source>
        <translation>De derecha a izquierda y de arriba abajo</translation>
    </message>
    <message>
        <source>Bottom to Top, Left to Right</source>
        <translation>De abajo arriba y de izquierda a derecha</translation>
    </message>
    <message>
        <source>Bottom to Top, Right to Left</source>
        <translation>De abajo arriba y de derecha a izquierda</translation>
    </message>
    <message>
        <source>Top to Bottom, Left to Right</source>
        <translation>De arriba abajo y de izquierda a derecha</translation>
    </message>
    <message>
        <source>Top to Bottom, Right to Left</source>
        <translation>De arriba abajo y de derecha a izquierda</translation>
    </message>
    <message>
        <source>There are conflicts in duplex settings. Do you want to fix them?</source>
        <translation>Los ajustes de impresión a doble cara se contradicen. ¿Quieres corregirlos?</translation>
    </message>
    <message>
        <source>Duplex Settings Conflicts</source>
        <translation>Ajustes de doble cara que se contradicen</translation>
    </message>
    <message>
        <source>Invalid Pages Definition</source>
        <translation>Páginas no válidas</translation>
    </message>
    <message>
        <source>%1 does not follow the correct syntax. Please use &apos;,&apos; to separate ranges and pages, &apos;-&apos; to define ranges and make sure ranges do not intersect with each other.</source>
        <translation>%1 no está bien escrito. Separa las páginas y los intervalos con «,», escribe los intervalos con «-» y comprueba que no se solapan.</translation>
    </message>
</context>
<context>
    <name>QPrintPreviewDialog</name>
    <message>
        <source>Print Preview</source>
        <translation>Vista previa de impresión</translation>
    </message>
    <message>
        <source>Fit page</source>
        <translation>Ajustar a la página</translation>
    </message>
    <message>
        <source>Fit width</source>
        <translation>Ajustar al ancho</translation>
    </message>
    <message>
        <source>Show single page</source>
        <translation>Mostrar una sola página</translation>
    </message>
    <message>
        <source>Show overview of all pages</source>
        <translation>Mostrar todas las páginas</translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation>Horizontal</translation>
    </message>
</context>
<context>
    <name>QPrintPropertiesDialog</name>
    <message>
        <source>Job Options</source>
        <translation>Opciones del trabajo</translation>
    </message>
    <message>
        <source>Printer Properties</source>
        <translation>Propiedades de la impresora</translation>
    </message>
    <message>
        <source>Advanced Option Conflicts</source>
        <translation>Opciones avanzadas que se contradicen</translation>
    </message>
    <message>
        <source>Page Setup Conflicts</source>
        <translation>Opciones de página que se contradicen</translation>
    </message>
    <message>
        <source>There are conflicts in some advanced options. Do you want to fix them?</source>
        <translation>Algunas opciones avanzadas se contradicen. ¿Quieres corregirlas?</translation>
    </message>
    <message>
        <source>There are conflicts in page setup options. Do you want to fix them?</source>
        <translation>Algunas opciones de página se contradicen. ¿Quieres corregirlas?</translation>
    </message>
</context>
<context>
    <name>QPrintPropertiesWidget</name>
    <message>
        <source>Advanced</source>
        <translation>Opciones avanzadas</translation>
    </message>
    <message>
        <source>There are conflicts in some options. Please fix them.</source>
        <translation>Algunas opciones se contradicen. Corrígelas.</translation>
    </message>
</context>
<context>
    <name>QPrintSettingsOutput</name>
    <message>
        <source>Page Set:</source>
        <translation>Conjunto de páginas:</translation>
    </message>
    <message>
        <source>Current Page</source>
        <translation>Página actual</translation>
    </message>
    <message>
        <source>Collate</source>
        <translation>Intercalar</translation>
    </message>
    <message>
        <source>Print range</source>
        <translation>Intervalo de impresión</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>No</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Páginas</translation>
    </message>
    <message>
        <source>Long side binding</source>
        <translation>Encuadernar por el lado largo</translation>
    </message>
    <message>
        <source>Short side binding</source>
        <translation>Encuadernar por el lado corto</translation>
    </message>
    <message>
        <source>Double Sided Printing</source>
        <translation>Impresión a doble cara</translation>
    </message>
    <message>
        <source>Specify pages or ranges separated by commas. Ranges are specified by two numbers separated by a hyphen. E.g: 3,5-7,9 prints pages 3, 5, 6, 7 and 9.</source>
        <translation>Escribe páginas o intervalos separados por comas. Un intervalo son dos números separados por un guion. Por ejemplo, 3,5-7,9 imprime las páginas 3, 5, 6, 7 y 9.</translation>
    </message>
</context>
<context>
    <name>QPrintWidget</name>
    <message>
        <source>Output &amp;file:</source>
        <translation>&amp;Archivo de salida:</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Vista previa</translation>
    </message>
</context>
<context>
    <name>QRegularExpression</name>
    <message>
        <source>\ at end of pattern</source>
        <translation>no hay nada detrás de la última «\»</translation>
    </message>
    <message>
        <source>\c at end of pattern</source>
        <translation>no hay nada detrás de «\c»</translation>
    </message>
    <message>
        <source>unrecognized character follows \</source>
        <translation>detrás de «\» hay un carácter sin significado</translation>
    </message>
    <message>
        <source>numbers out of order in {} quantifier</source>
        <translation>los números de {} están al revés</translation>
    </message>
    <message>
        <source>number too big in {} quantifier</source>
        <translation>un número de {} es demasiado grande</translation>
    </message>
    <message>
        <source>missing terminating ] for character class</source>
        <translation>falta el corchete de cierre «]»</translation>
    </message>
    <message>
        <source>escape sequence is invalid in character class</source>
        <translation>entre corchetes hay una «\» con un carácter que ahí no vale</translation>
    </message>
    <message>
        <source>range out of order in character class</source>
        <translation>un intervalo entre corchetes está al revés</translation>
    </message>
    <message>
        <source>quantifier does not follow a repeatable item</source>
        <translation>un cuantificador (*, +, ? o {}) no tiene nada que repetir</translation>
    </message>
    <message>
        <source>internal error: unexpected repeat</source>
        <translation>error interno del buscador</translation>
    </message>
    <message>
        <source>unrecognized character after (? or (?-</source>
        <translation>detrás de «(?» hay un carácter sin significado</translation>
    </message>
    <message>
        <source>POSIX named classes are supported only within a class</source>
        <translation>«[: :]» solo vale dentro de otros corchetes</translation>
    </message>
    <message>
        <source>POSIX collating elements are not supported</source>
        <translation>«[. .]» y «[= =]» no se admiten</translation>
    </message>
    <message>
        <source>missing closing parenthesis</source>
        <translation>falta un paréntesis de cierre</translation>
    </message>
    <message>
        <source>reference to non-existent subpattern</source>
        <translation>se nombra un grupo que no existe</translation>
    </message>
    <message>
        <source>pattern passed as NULL</source>
        <translation>no hay ninguna expresión</translation>
    </message>
    <message>
        <source>unrecognised compile-time option bit(s)</source>
        <translation>la expresión pide una opción que no existe</translation>
    </message>
    <message>
        <source>missing ) after (?# comment</source>
        <translation>falta cerrar el comentario «(?#»</translation>
    </message>
    <message>
        <source>parentheses are too deeply nested</source>
        <translation>hay demasiados paréntesis unos dentro de otros</translation>
    </message>
    <message>
        <source>regular expression is too large</source>
        <translation>la expresión es demasiado larga</translation>
    </message>
    <message>
        <source>failed to allocate heap memory</source>
        <translation>no hay memoria suficiente para la expresión</translation>
    </message>
    <message>
        <source>unmatched closing parenthesis</source>
        <translation>sobra un paréntesis de cierre</translation>
    </message>
    <message>
        <source>internal error: code overflow</source>
        <translation>error interno del buscador</translation>
    </message>
    <message>
        <source>missing closing parenthesis for condition</source>
        <translation>falta cerrar el paréntesis de una condición</translation>
    </message>
    <message>
        <source>lookbehind assertion is not fixed length</source>
        <translation>lo que se comprueba hacia atrás no tiene una longitud fija</translation>
    </message>
    <message>
        <source>a relative value of zero is not allowed</source>
        <translation>un número relativo no puede ser cero</translation>
    </message>
    <message>
        <source>conditional subpattern contains more than two branches</source>
        <translation>una condición tiene más de dos alternativas</translation>
    </message>
    <message>
        <source>assertion expected after (?( or (?(?C)</source>
        <translation>falta la condición detrás de «(?(»</translation>
    </message>
    <message>
        <source>digit expected after (?+ or (?-</source>
        <translation>detrás de «(?+» o «(?-» falta una cifra</translation>
    </message>
    <message>
        <source>unknown POSIX class name</source>
        <translation>no existe la clase de caracteres que se nombra con «[: :]»</translation>
    </message>
    <message>
        <source>internal error in pcre2_study(): should not occur</source>
        <translation>error interno del buscador</translation>
    </message>
    <message>
        <source>this version of PCRE2 does not have Unicode support</source>
        <translation>el buscador no admite Unicode</translation>
    </message>
    <message>
        <source>parentheses are too deeply nested (stack check)</source>
        <translation>hay demasiados paréntesis unos dentro de otros</translation>
    </message>
    <message>
        <source>character code point value in \x{} or \o{} is too large</source>
        <translation>el código de un carácter es demasiado grande</translation>
    </message>
    <message>
        <source>lookbehind is too complicated</source>
        <translation>lo que se comprueba hacia atrás es demasiado complicado</translation>
    </message>
    <message>
        <source>\C is not allowed in a lookbehind assertion in UTF-16 mode</source>
        <translation>«\C» no vale en lo que se comprueba hacia atrás</translation>
    </message>
    <message>
        <source>PCRE2 does not support \F, \L, \l, \N{name}, \U, or \u</source>
        <translation>\F, \L, \l, \N{}, \U y \u no se admiten</translation>
    </message>
    <message>
        <source>number after (?C is greater than 255</source>
        <translation>el número de «(?C» es demasiado grande</translation>
    </message>
    <message>
        <source>closing parenthesis for (?C expected</source>
        <translation>falta cerrar el paréntesis de «(?C»</translation>
    </message>
    <message>
        <source>invalid escape sequence in (*VERB) name</source>
        <translation>en el nombre de la orden que se da con «(*» hay una «\» que ahí no vale</translation>
    </message>
    <message>
        <source>unrecognized character after (?P</source>
        <translation>detrás de «(?P» hay un carácter sin significado</translation>
    </message>
    <message>
        <source>syntax error in subpattern name (missing terminator?)</source>
        <translation>el nombre de un grupo no está bien escrito</translation>
    </message>
    <message>
        <source>two named subpatterns have the same name (PCRE2_DUPNAMES not set)</source>
        <translation>dos grupos tienen el mismo nombre</translation>
    </message>
    <message>
        <source>subpattern name must start with a non-digit</source>
        <translation>el nombre de un grupo no puede empezar por una cifra</translation>
    </message>
    <message>
        <source>this version of PCRE2 does not have support for \P, \p, or \X</source>
        <translation>el buscador no admite «\P», «\p» ni «\X»</translation>
    </message>
    <message>
        <source>malformed \P or \p sequence</source>
        <translation>detrás de «\p» falta el nombre de una propiedad</translation>
    </message>
    <message>
        <source>unknown property after \P or \p</source>
        <translation>no existe la propiedad que se nombra con «\p»</translation>
    </message>
    <message>
        <source>subpattern name is too long (maximum 32 code units)</source>
        <translation>el nombre de un grupo es demasiado largo</translation>
    </message>
    <message>
        <source>too many named subpatterns (maximum 10000)</source>
        <translation>hay demasiados grupos con nombre</translation>
    </message>
    <message>
        <source>invalid range in character class</source>
        <translation>un intervalo entre corchetes no es válido</translation>
    </message>
    <message>
        <source>octal value is greater than \377 in 8-bit non-UTF-8 mode</source>
        <translation>el código octal de un carácter es demasiado grande</translation>
    </message>
    <message>
        <source>internal error: overran compiling workspace</source>
        <translation>error interno del buscador</translation>
    </message>
    <message>
        <source>internal error: previously-checked referenced subpattern not found</source>
        <translation>error interno del buscador</translation>
    </message>
    <message>
        <source>DEFINE subpattern contains more than one branch</source>
        <translation>«(?(DEFINE)» tiene más de una alternativa</translation>
    </message>
    <message>
        <source>missing opening brace after \o</source>
        <translation>falta la llave detrás de «\o»</translation>
    </message>
    <message>
        <source>internal error: unknown newline setting</source>
        <translation>error interno del buscador</translation>
    </message>
    <message>
        <source>\g is not followed by a braced, angle-bracketed, or quoted name/number or by a plain number</source>
        <translation>detrás de «\g» falta el nombre o el número de un grupo</translation>
    </message>
    <message>
        <source>(?R (recursive pattern call) must be followed by a closing parenthesis</source>
        <translation>falta cerrar el paréntesis de «(?R»</translation>
    </message>
    <message>
        <source>obsolete error (should not occur)</source>
        <translation>error interno del buscador</translation>
    </message>
    <message>
        <source>(*VERB) not recognized or malformed</source>
        <translation>no existe la orden que se da con «(*»</translation>
    </message>
    <message>
        <source>subpattern number is too big</source>
        <translation>el número de un grupo es demasiado grande</translation>
    </message>
    <message>
        <source>subpattern name expected</source>
        <translation>falta el nombre de un grupo</translation>
    </message>
    <message>
        <source>internal error: parsed pattern overflow</source>
        <translation>error interno del buscador</translation>
    </message>
    <message>
        <source>non-octal character in \o{} (closing brace missing?)</source>
        <translation>en «\o{}» hay algo que no es una cifra octal</translation>
    </message>
    <message>
        <source>different names for subpatterns of the same number are not allowed</source>
        <translation>dos grupos con el mismo número tienen nombres distintos</translation>
    </message>
    <message>
        <source>(*MARK) must have an argument</source>
        <translation>a «(*MARK)» le falta el nombre</translation>
    </message>
    <message>
        <source>non-hex character in \x{} (closing brace missing?)</source>
        <translation>en «\x{}» hay algo que no es una cifra hexadecimal</translation>
    </message>
    <message>
        <source>\c must be followed by a printable ASCII character</source>
        <translation>detrás de «\c» tiene que haber una letra o un signo sin acentos</translation>
    </message>
    <message>
        <source>\k is not followed by a braced, angle-bracketed, or quoted name</source>
        <translation>detrás de «\k» falta el nombre de un grupo</translation>
    </message>
    <message>
        <source>internal error: unknown meta code in check_lookbehinds()</source>
        <translation>error interno del buscador</translation>
    </message>
    <message>
        <source>\N is not supported in a class</source>
        <translation>«\N» no vale entre corchetes</translation>
    </message>
    <message>
        <source>callout string is too long</source>
        <translation>el texto de «(?C» es demasiado largo</translation>
    </message>
    <message>
        <source>disallowed Unicode code point (&gt;= 0xd800 &amp;&amp; &lt;= 0xdfff)</source>
        <translation>el código de un carácter no vale en Unicode</translation>
    </message>
    <message>
        <source>using UTF is disabled by the application</source>
        <translation>aquí no se puede cambiar a UTF</translation>
    </message>
    <message>
        <source>using UCP is disabled by the application</source>
        <translation>aquí no se puede cambiar a UCP</translation>
    </message>
    <message>
        <source>name is too long in (*MARK), (*PRUNE), (*SKIP), or (*THEN)</source>
        <translation>el nombre de una orden que se da con «(*» es demasiado largo</translation>
    </message>
    <message>
        <source>character code point value in \u.... sequence is too large</source>
        <translation>el código de un carácter de «\u» es demasiado grande</translation>
    </message>
    <message>
        <source>digits missing in \x{} or \o{} or \N{U+}</source>
        <translation>faltan cifras en «\x{}», «\o{}» o «\N{U+}»</translation>
    </message>
    <message>
        <source>syntax error or number too big in (?(VERSION condition</source>
        <translation>el número de «(?(VERSION» no está bien escrito</translation>
    </message>
    <message>
        <source>internal error: unknown opcode in auto_possessify()</source>
        <translation>error interno del buscador</translation>
    </message>
    <message>
        <source>missing terminating delimiter for callout with string argument</source>
        <translation>falta cerrar el texto de «(?C»</translation>
    </message>
    <message>
        <source>unrecognized string delimiter follows (?C</source>
        <translation>el texto de «(?C» no empieza bien</translation>
    </message>
    <message>
        <source>using \C is disabled by the application</source>
        <translation>«\C» no se puede usar aquí</translation>
    </message>
    <message>
        <source>(?| and/or (?J: or (?x: parentheses are too deeply nested</source>
        <translation>hay demasiados paréntesis «(?|», «(?J:» o «(?x:» unos dentro de otros</translation>
    </message>
    <message>
        <source>using \C is disabled in this PCRE2 library</source>
        <translation>«\C» no se puede usar aquí</translation>
    </message>
    <message>
        <source>regular expression is too complicated</source>
        <translation>la expresión es demasiado complicada</translation>
    </message>
    <message>
        <source>lookbehind assertion is too long</source>
        <translation>lo que se comprueba hacia atrás es demasiado largo</translation>
    </message>
    <message>
        <source>pattern string is longer than the limit set by the application</source>
        <translation>la expresión es demasiado larga</translation>
    </message>
    <message>
        <source>internal error: unknown code in parsed pattern</source>
        <translation>error interno del buscador</translation>
    </message>
    <message>
        <source>internal error: bad code value in parsed_skip()</source>
        <translation>error interno del buscador</translation>
    </message>
    <message>
        <source>PCRE2_EXTRA_ALLOW_SURROGATE_ESCAPES is not allowed in UTF-16 mode</source>
        <translation>la expresión pide una opción que aquí no vale</translation>
    </message>
    <message>
        <source>invalid option bits with PCRE2_LITERAL</source>
        <translation>la expresión pide una opción que aquí no vale</translation>
    </message>
    <message>
        <source>\N{U+dddd} is supported only in Unicode (UTF) mode</source>
        <translation>«\N{U+}» no se admite aquí</translation>
    </message>
    <message>
        <source>invalid hyphen in option setting</source>
        <translation>en las opciones de «(?» sobra un guion</translation>
    </message>
    <message>
        <source>(*alpha_assertion) not recognized</source>
        <translation>no existe la comprobación que se nombra con «(*»</translation>
    </message>
    <message>
        <source>script runs require Unicode support, which this version of PCRE2 does not have</source>
        <translation>el buscador no admite Unicode</translation>
    </message>
    <message>
        <source>too many capturing groups (maximum 65535)</source>
        <translation>hay demasiados grupos</translation>
    </message>
    <message>
        <source>atomic assertion expected after (?( or (?(?C)</source>
        <translation>detrás de «(?(» solo vale una comprobación que no vuelve atrás</translation>
    </message>
    <message>
        <source>\K is not allowed in lookarounds (but see PCRE2_EXTRA_ALLOW_LOOKAROUND_BSK)</source>
        <translation>«\K» no vale dentro de lo que se comprueba hacia delante o hacia atrás</translation>
    </message>
    <message>
        <source>unknown property name after \P or \p</source>
        <translation>no existe la propiedad que se nombra con «\p»</translation>
    </message>
    <message>
        <source>unknown property</source>
        <translation>no existe la propiedad que se nombra con «\p»</translation>
    </message>
    <message>
        <source>\K is not allowed in lookarounds</source>
        <translation>«\K» no vale dentro de lo que se comprueba hacia delante o hacia atrás</translation>
    </message>
    <message>
        <source>number after (?C is &gt; 255</source>
        <translation>el número de «(?C» es demasiado grande</translation>
    </message>
    <message>
        <source>\c must be followed by a letter or one of [\]^_?</source>
        <translation>detrás de «\c» tiene que haber una letra o un signo sin acentos</translation>
    </message>
    <message>
        <source>subpattern name is too long (maximum 128 code units)</source>
        <translation>el nombre de un grupo es demasiado largo</translation>
    </message>
</context>
<context>
    <name>QSaveFile</name>
    <message>
        <source>Filename refers to a directory</source>
        <translation>El nombre es el de una carpeta</translation>
    </message>
    <message>
        <source>Existing file %1 is not writable</source>
        <translation>No se puede escribir en el archivo %1</translation>
    </message>
    <message>
        <source>QSaveFile cannot open &apos;%1&apos; without direct write fallback enabled.</source>
        <translation>No se puede abrir «%1» sin escribir directamente en él.</translation>
    </message>
</context>
<context>
    <name>QShortcut</name>
    <message>
        <source>Ctrl</source>
        <translation>Ctrl</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>Mayús</translation>
    </message>
    <message>
        <source>Del</source>
        <translation>Supr</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Supr</translation>
    </message>
    <message>
        <source>Ins</source>
        <translation>Insert</translation>
    </message>
    <message>
        <source>Insert</source>
        <translation>Insert</translation>
    </message>
    <message>
        <source>Tab</source>
        <translation>Tab</translation>
    </message>
    <message>
        <source>Return</source>
        <translation>Intro</translation>
    </message>
    <message>
        <source>PgUp</source>
        <translation>RePág</translation>
    </message>
    <message>
        <source>PgDown</source>
        <translation>AvPág</translation>
    </message>
    <message>
        <source>Page Up</source>
        <translation>RePág</translation>
    </message>
    <message>
        <source>Page Down</source>
        <translation>AvPág</translation>
    </message>
    <message>
        <source>Backspace</source>
        <translation>Retroceso</translation>
    </message>
    <message>
        <source>Backtab</source>
        <translation>Mayús+Tab</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Impr Pant</translation>
    </message>
    <message>
        <source>Caps Lock</source>
        <translation>Bloq Mayús</translation>
    </message>
    <message>
        <source>NumLock</source>
        <translation>Bloq Núm</translation>
    </message>
    <message>
        <source>Num Lock</source>
        <translation>Bloq Núm</translation>
    </message>
    <message>
        <source>Number Lock</source>
        <translation>Bloq Núm</translation>
    </message>
    <message>
        <source>ScrollLock</source>
        <translation>Bloq Despl</translation>
    </message>
    <message>
        <source>Scroll Lock</source>
        <translation>Bloq Despl</translation>
    </message>
    <message>
        <source>Control</source>
        <translation>Ctrl</translation>
    </message>
    <message>
        <source>Adjust contrast</source>
        <translation>Ajustar contraste</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>Calendario</translation>
    </message>
    <message>
        <source>Memo</source>
        <translation>Nota</translation>
    </message>
    <message>
        <source>To-do list</source>
        <translation>Lista de tareas</translation>
    </message>
    <message>
        <source>Launch (G)</source>
        <translation>Lanzar (G)</translation>
    </message>
    <message>
        <source>Launch (H)</source>
        <translation>Lanzar (H)</translation>
    </message>
</context>
<context>
    <name>QSpiAccessibleBridge</name>
    <message>
        <source>notification</source>
        <translation>notificación</translation>
    </message>
    <message>
        <source>desktop</source>
        <translation>escritorio</translation>
    </message>
    <message>
        <source>terminal</source>
        <translation>terminal</translation>
    </message>
    <message>
        <source>push button</source>
        <translation>botón</translation>
    </message>
    <message>
        <source>list item</source>
        <translation>elemento de lista</translation>
    </message>
    <message>
        <source>combo box</source>
        <translation>cuadro combinado</translation>
    </message>
    <message>
        <source>spin box</source>
        <translation>cuadro de número</translation>
    </message>
    <message>
        <source>button with drop down</source>
        <translation>botón con lista desplegable</translation>
    </message>
    <message>
        <source>text caret</source>
        <translation>cursor de texto</translation>
    </message>
    <message>
        <source>invalid role</source>
        <translation>papel no válido</translation>
    </message>
</context>
<context>
    <name>QUnicodeControlCharacterMenu</name>
    <message>
        <source>LRM Left-to-right mark</source>
        <translation>LRM Marca de izquierda a derecha</translation>
    </message>
    <message>
        <source>RLM Right-to-left mark</source>
        <translation>RLM Marca de derecha a izquierda</translation>
    </message>
    <message>
        <source>ZWJ Zero width joiner</source>
        <translation>ZWJ Unión de ancho cero</translation>
    </message>
    <message>
        <source>ZWNJ Zero width non-joiner</source>
        <translation>ZWNJ Separación de ancho cero</translation>
    </message>
    <message>
        <source>ZWSP Zero width space</source>
        <translation>ZWSP Espacio de ancho cero</translation>
    </message>
    <message>
        <source>LRE Start of left-to-right embedding</source>
        <translation>LRE Comienzo de inserción de izquierda a derecha</translation>
    </message>
    <message>
        <source>RLE Start of right-to-left embedding</source>
        <translation>RLE Comienzo de inserción de derecha a izquierda</translation>
    </message>
    <message>
        <source>LRO Start of left-to-right override</source>
        <translation>LRO Comienzo de escritura forzada de izquierda a derecha</translation>
    </message>
    <message>
        <source>RLO Start of right-to-left override</source>
        <translation>RLO Comienzo de escritura forzada de derecha a izquierda</translation>
    </message>
    <message>
        <source>PDF Pop directional formatting</source>
        <translation>PDF Fin de la dirección de escritura</translation>
    </message>
    <message>
        <source>LRI Left-to-right isolate</source>
        <translation>LRI Aislamiento de izquierda a derecha</translation>
    </message>
    <message>
        <source>RLI Right-to-left isolate</source>
        <translation>RLI Aislamiento de derecha a izquierda</translation>
    </message>
    <message>
        <source>FSI First strong isolate</source>
        <translation>FSI Aislamiento según el primer carácter</translation>
    </message>
    <message>
        <source>PDI Pop directional isolate</source>
        <translation>PDI Fin del aislamiento</translation>
    </message>
</context>
<context>
    <name>QWidgetTextControl</name>
    <message>
        <source>Delete</source>
        <translation>Eliminar</translation>
    </message>
</context>
</TS>
