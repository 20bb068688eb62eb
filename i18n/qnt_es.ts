<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>BreaksDialog</name>
    <message>
        <source>Breaks</source>
        <translation>Subtotales</translation>
    </message>
    <message>
        <source>A break adds a summary to the report where the value of its field changes.</source>
        <translation>Un subtotal agrega un resumen al informe allí donde cambia el valor de su campo.</translation>
    </message>
    <message>
        <source>Key Fields:</source>
        <translation>Campos clave:</translation>
    </message>
    <message>
        <source>Enter or a double click defines a break, Space activates or suspends it</source>
        <translation>Intro o doble clic define un subtotal; Espacio lo activa o lo suspende</translation>
    </message>
    <message>
        <source>&amp;Define...</source>
        <translation>&amp;Definir...</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Cerrar</translation>
    </message>
</context>
<context>
    <name>ConfigureBreakDialog</name>
    <message>
        <source>Define Break</source>
        <translation>Definir subtotal</translation>
    </message>
    <message>
        <source>Field:</source>
        <translation>Campo:</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Nombre:</translation>
    </message>
    <message>
        <source>Acti&amp;ve</source>
        <translation>Acti&amp;vo</translation>
    </message>
    <message>
        <source>Put A &amp;Blank Row After Break</source>
        <translation>&amp;Insertar una fila en blanco tras el subtotal</translation>
    </message>
    <message>
        <source>Break &amp;Frequency:</source>
        <translation>&amp;Frecuencia del subtotal:</translation>
    </message>
    <message>
        <source>F&amp;irst Break:</source>
        <translation>&amp;Primer subtotal:</translation>
    </message>
    <message>
        <source>At Break, Compute</source>
        <translation>Calcular en el subtotal</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Cerrar</translation>
    </message>
    <message>
        <source>This break shows nothing: its field is neither in the rows nor in the columns of the report.</source>
        <translation>Este subtotal no muestra nada: su campo no está ni en las filas ni en las columnas del informe.</translation>
    </message>
    <message>
        <source>This break shows nothing: it is not active.</source>
        <translation>Este subtotal no muestra nada: no está activo.</translation>
    </message>
    <message>
        <source>This break shows nothing: choose how often it comes.</source>
        <translation>Este subtotal no muestra nada: elija su frecuencia.</translation>
    </message>
    <message>
        <source>This break shows nothing: choose what to compute for at least one data field.</source>
        <translation>Este subtotal no muestra nada: elija qué se calcula para al menos un campo de datos.</translation>
    </message>
</context>
<context>
    <name>ConfigureDisplayDialog</name>
    <message>
        <source>Display</source>
        <translation>Visualización</translation>
    </message>
    <message>
        <source>Data Fields</source>
        <translation>Campos de datos</translation>
    </message>
    <message>
        <source>A&amp;vailable fields</source>
        <translation>Campos &amp;disponibles</translation>
    </message>
    <message>
        <source>Show (Ordered)</source>
        <translation>Mostrados (en orden)</translation>
    </message>
    <message>
        <source>Available fields</source>
        <translation>Campos disponibles</translation>
    </message>
    <message>
        <source>&amp;Show &gt;</source>
        <translation>&amp;Mostrar &gt;</translation>
    </message>
    <message>
        <source>Show the selected fields as data</source>
        <translation>Mostrar los campos seleccionados como datos</translation>
    </message>
    <message>
        <source>&lt; &amp;Hide</source>
        <translation>&lt; &amp;Ocultar</translation>
    </message>
    <message>
        <source>Take the selected fields out of the report</source>
        <translation>Quitar del informe los campos seleccionados</translation>
    </message>
    <message>
        <source>&amp;Up</source>
        <translation>&amp;Subir</translation>
    </message>
    <message>
        <source>Move the selected fields up</source>
        <translation>Subir los campos seleccionados</translation>
    </message>
    <message>
        <source>Dow&amp;n</source>
        <translation>&amp;Bajar</translation>
    </message>
    <message>
        <source>Move the selected fields down</source>
        <translation>Bajar los campos seleccionados</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>Informe</translation>
    </message>
    <message>
        <source>&amp;Title:</source>
        <translation>&amp;Título:</translation>
    </message>
    <message>
        <source>Show S&amp;ystem Title</source>
        <translation>Mostrar título del s&amp;istema</translation>
    </message>
    <message>
        <source>Show Du&amp;plicate Labels</source>
        <translation>Mostrar &amp;etiquetas duplicadas</translation>
    </message>
    <message>
        <source>Show &amp;Empty Rows and Columns</source>
        <translation>Mostrar &amp;filas y columnas vacías</translation>
    </message>
    <message>
        <source>&amp;Date Format:</source>
        <translation>Formato de fec&amp;ha:</translation>
    </message>
    <message>
        <source>%d day, %m month, %b month name, %Y year, %y year in two digits, %H hour, %M minute, %S second</source>
        <translation>%d día, %m mes, %b nombre del mes, %Y año, %y año con dos dígitos, %H hora, %M minuto, %S segundo</translation>
    </message>
    <message>
        <source>P&amp;recision:</source>
        <translation>P&amp;recisión:</translation>
    </message>
    <message>
        <source>Decimal Places</source>
        <translation>decimales</translation>
    </message>
    <message>
        <source>Period &amp;File:</source>
        <translation>Archivo de &amp;períodos:</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>E&amp;xaminar...</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>&amp;Aplicar</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Cancelar</translation>
    </message>
</context>
<context>
    <name>ConfigureLayoutDialog</name>
    <message>
        <source>Reordering columns:</source>
        <translation>Reordenar columnas:</translation>
    </message>
    <message>
        <source>Drag buttons up and down within the area below to rearrange column order</source>
        <translation>Arrastre los botones hacia arriba o hacia abajo en el área inferior para cambiar el orden de las columnas</translation>
    </message>
    <message>
        <source>Make a &amp;Column</source>
        <translation>Convertir en &amp;columna</translation>
    </message>
    <message>
        <source>Creating tabs:</source>
        <translation>Crear pestañas:</translation>
    </message>
    <message>
        <source>Drag and drop buttons into this area to create tabs in the report</source>
        <translation>Arrastre botones a esta área para crear pestañas en el informe</translation>
    </message>
    <message>
        <source>Make &amp;Tabs</source>
        <translation>Convertir en &amp;pestañas</translation>
    </message>
    <message>
        <source>Spreading data horizontally:</source>
        <translation>Distribuir datos horizontalmente:</translation>
    </message>
    <message>
        <source>Drag and drop buttons into this area to spread data horizontally.</source>
        <translation>Arrastre botones a esta área para distribuir los datos horizontalmente.</translation>
    </message>
    <message>
        <source>&amp;Spread Horizontally</source>
        <translation>&amp;Distribuir horizontalmente</translation>
    </message>
</context>
<context>
    <name>ExprEdtrViewBase</name>
    <message>
        <source>Expression Editor</source>
        <translation>Editor de expresiones</translation>
    </message>
    <message>
        <source>Field &amp;Name:</source>
        <translation>&amp;Nombre del campo:</translation>
    </message>
    <message>
        <source>&amp;Formula:</source>
        <translation>&amp;Fórmula:</translation>
    </message>
    <message>
        <source>&amp;Inverse Formula (applied only when field is edited):</source>
        <translation>Fórmula &amp;inversa (solo se aplica al editar el campo):</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>&amp;Aplicar</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Cancelar</translation>
    </message>
</context>
<context>
    <name>ExpressionsDialog</name>
    <message>
        <source>Expressions</source>
        <translation>Expresiones</translation>
    </message>
    <message>
        <source>&amp;Actions</source>
        <translation>Acci&amp;ones</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>&amp;Aplicar</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Cancelar</translation>
    </message>
</context>
<context>
    <name>FieldDialog</name>
    <message>
        <source>Configure Fields</source>
        <translation>Configurar campos</translation>
    </message>
    <message>
        <source>Field, Classifications and Data Type</source>
        <translation>Campo, clasificación y tipo de datos</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>&amp;Aplicar</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Cancelar</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>Clave</translation>
    </message>
    <message>
        <source>Data, can be edited</source>
        <translation>Datos, editables</translation>
    </message>
    <message>
        <source>Data, read only</source>
        <translation>Datos, solo lectura</translation>
    </message>
    <message>
        <source>String</source>
        <translation>Texto</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Número</translation>
    </message>
    <message>
        <source>Boolean</source>
        <translation>Booleano</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Fecha</translation>
    </message>
    <message>
        <source>Expression</source>
        <translation>Expresión</translation>
    </message>
    <message>
        <source>Period</source>
        <translation>Período</translation>
    </message>
</context>
<context>
    <name>FileDialog</name>
    <message>
        <source>%1 already exists.
Do you want to replace it?</source>
        <translation>%1 ya existe.
¿Desea reemplazarlo?</translation>
    </message>
</context>
<context>
    <name>FillCellsDialog</name>
    <message>
        <source>Fill Cells</source>
        <translation>Rellenar celdas</translation>
    </message>
    <message>
        <source>&amp;Value:</source>
        <translation>&amp;Valor:</translation>
    </message>
    <message>
        <source>A value as it is typed into a cell; for numbers also a formula</source>
        <translation>Un valor tal como se escribe en una celda; para números, también una fórmula</translation>
    </message>
    <message>
        <source>Fill</source>
        <translation>Rellenar</translation>
    </message>
    <message>
        <source>&amp;Row</source>
        <translation>&amp;Fila</translation>
    </message>
    <message>
        <source>Number of the row</source>
        <translation>Número de fila</translation>
    </message>
    <message>
        <source>C&amp;olumn</source>
        <translation>Co&amp;lumna</translation>
    </message>
    <message>
        <source>Number of the column</source>
        <translation>Número de columna</translation>
    </message>
    <message>
        <source>&amp;Entire table</source>
        <translation>&amp;Toda la tabla</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>&amp;Aplicar</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Cerrar</translation>
    </message>
</context>
<context>
    <name>FormulaCheck</name>
    <message>
        <source>A name with an apostrophe and blanks or operators in it cannot be used in formulas: view files keep no double quotes around it.</source>
        <translation>Un nombre con un apóstrofo y espacios u operadores no se puede usar en fórmulas: los archivos de vista no conservan las comillas dobles que lo rodean.</translation>
    </message>
</context>
<context>
    <name>FunctionsDialog</name>
    <message>
        <source>Expression Functions</source>
        <translation>Funciones de expresiones</translation>
    </message>
    <message>
        <source>F&amp;ilter:</source>
        <translation>F&amp;iltro:</translation>
    </message>
    <message>
        <source>&amp;Functions</source>
        <translation>&amp;Funciones</translation>
    </message>
    <message>
        <source>(drag and drop into field or highlight expressions)</source>
        <translation>(arrastre a expresiones de campo o de resaltado)</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Cerrar</translation>
    </message>
</context>
<context>
    <name>HighlightEdtrViewBase</name>
    <message>
        <source>Highlight Editor</source>
        <translation>Editor de resaltado</translation>
    </message>
    <message>
        <source>Field Name:</source>
        <translation>Nombre del campo:</translation>
    </message>
    <message>
        <source>&amp;Highlight Formula:</source>
        <translation>&amp;Fórmula de resaltado:</translation>
    </message>
    <message>
        <source>&amp;Set from source</source>
        <translation>&amp;Tomar de otro campo</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>&amp;Aplicar</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Cancelar</translation>
    </message>
</context>
<context>
    <name>HighlightingDialog</name>
    <message>
        <source>Highlighting</source>
        <translation>Resaltado</translation>
    </message>
    <message>
        <source>&amp;Actions</source>
        <translation>Acci&amp;ones</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>&amp;Aplicar</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Cancelar</translation>
    </message>
</context>
<context>
    <name>PrintOptionsDialog</name>
    <message>
        <source>Print Options</source>
        <translation>Opciones de impresión</translation>
    </message>
    <message>
        <source>Page</source>
        <translation>Página</translation>
    </message>
    <message>
        <source>&amp;Title:</source>
        <translation>&amp;Título:</translation>
    </message>
    <message>
        <source>&amp;Footer:</source>
        <translation>Pie de pá&amp;gina:</translation>
    </message>
    <message>
        <source>Repeat &amp;Row Headings</source>
        <translation>Repetir etiquetas de &amp;fila</translation>
    </message>
    <message>
        <source>Repeat &amp;Column Headings</source>
        <translation>Repetir eti&amp;quetas de columna</translation>
    </message>
    <message>
        <source>Print All &amp;Z Dimensions on Separate Pages</source>
        <translation>Imprimir todas las dimensiones &amp;Z en páginas aparte</translation>
    </message>
    <message>
        <source>Printer</source>
        <translation>Impresora</translation>
    </message>
    <message>
        <source>Printer T&amp;ype:</source>
        <translation>Tip&amp;o de impresora:</translation>
    </message>
    <message>
        <source>&amp;Printer:</source>
        <translation>&amp;Impresora:</translation>
    </message>
    <message>
        <source>Print Co&amp;mmand:</source>
        <translation>&amp;Comando de impresión:</translation>
    </message>
    <message>
        <source>Runs in place of the printer; %s stands for the print file</source>
        <translation>Se ejecuta en lugar de la impresora; %s representa el archivo de impresión</translation>
    </message>
    <message>
        <source>Print to fi&amp;le</source>
        <translation>I&amp;mprimir en archivo</translation>
    </message>
    <message>
        <source>File &amp;name:</source>
        <translation>&amp;Nombre de archivo:</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>E&amp;xaminar...</translation>
    </message>
    <message>
        <source>Scaling</source>
        <translation>Escala</translation>
    </message>
    <message>
        <source>Fit &amp;Width to</source>
        <translation>A&amp;justar ancho a</translation>
    </message>
    <message>
        <source>Pages across</source>
        <translation>Páginas de ancho</translation>
    </message>
    <message>
        <source>Page(s)</source>
        <translation>página(s)</translation>
    </message>
    <message>
        <source>Fit &amp;Height to</source>
        <translation>Aju&amp;star alto a</translation>
    </message>
    <message>
        <source>Pages down</source>
        <translation>Páginas de alto</translation>
    </message>
    <message>
        <source>Fit on &amp;One Page</source>
        <translation>Ajustar ancho &amp;y alto a una página</translation>
    </message>
    <message>
        <source>&amp;Use Font Size</source>
        <translation>Usar tama&amp;ño de fuente</translation>
    </message>
    <message>
        <source>Font size</source>
        <translation>Tamaño de fuente</translation>
    </message>
    <message>
        <source>Points</source>
        <translation>puntos</translation>
    </message>
    <message>
        <source>Paper</source>
        <translation>Papel</translation>
    </message>
    <message>
        <source>Pap&amp;er:</source>
        <translation>&amp;Papel:</translation>
    </message>
    <message>
        <source>Orientation:</source>
        <translation>Orientación:</translation>
    </message>
    <message>
        <source>Portra&amp;it</source>
        <translation>&amp;Vertical</translation>
    </message>
    <message>
        <source>Land&amp;scape</source>
        <translation>&amp;Horizontal</translation>
    </message>
    <message>
        <source>Show &amp;Grid</source>
        <translation>Mostrar c&amp;uadrícula</translation>
    </message>
    <message>
        <source>ASCII</source>
        <translation>ASCII</translation>
    </message>
    <message>
        <source>Page &amp;Width (chars)</source>
        <translation>Ca&amp;racteres por línea</translation>
    </message>
    <message>
        <source>Page Width (chars)</source>
        <translation>Caracteres por línea</translation>
    </message>
    <message>
        <source>Page &amp;Height (chars)</source>
        <translation>&amp;Líneas por página</translation>
    </message>
    <message>
        <source>Page Height (chars)</source>
        <translation>Líneas por página</translation>
    </message>
    <message>
        <source>HTML</source>
        <translation>HTML</translation>
    </message>
    <message>
        <source>C&amp;omplete Document</source>
        <translation>&amp;Documento completo</translation>
    </message>
    <message>
        <source>Border&amp;s</source>
        <translation>&amp;Bordes</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>&amp;Aplicar</translation>
    </message>
    <message>
        <source>Apply an&amp;d Print</source>
        <translation>Aplicar &amp;e imprimir</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>PostScript</source>
        <translation>PostScript</translation>
    </message>
</context>
<context>
    <name>VrelMainWindow</name>
    <message>
        <source>&amp;Print...</source>
        <translation>&amp;Imprimir...</translation>
    </message>
    <message>
        <source>&amp;Export</source>
        <translation>&amp;Exportar</translation>
    </message>
    <message>
        <source>Export &amp;As...</source>
        <translation>Exp&amp;ortar como...</translation>
    </message>
    <message>
        <source>&amp;Open View...</source>
        <translation>&amp;Abrir vista...</translation>
    </message>
    <message>
        <source>&amp;Save View</source>
        <translation>&amp;Guardar vista</translation>
    </message>
    <message>
        <source>Save &amp;View As...</source>
        <translation>Guardar &amp;vista como...</translation>
    </message>
    <message>
        <source>&amp;Import Expressions...</source>
        <translation>Im&amp;portar expresiones...</translation>
    </message>
    <message>
        <source>Import &amp;Highlighting...</source>
        <translation>Importar &amp;resaltado...</translation>
    </message>
    <message>
        <source>&amp;Delete View...</source>
        <translation>E&amp;liminar vista...</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Cerrar</translation>
    </message>
    <message>
        <source>&amp;All Inverse Formulas</source>
        <translation>&amp;Todas las fórmulas inversas</translation>
    </message>
    <message>
        <source>&amp;Fill Cells...</source>
        <translation>&amp;Rellenar celdas...</translation>
    </message>
    <message>
        <source>&amp;Recalculate</source>
        <translation>Re&amp;calcular</translation>
    </message>
    <message>
        <source>&amp;Swap Data Row/Column</source>
        <translation>&amp;Intercambiar fila/columna de datos</translation>
    </message>
    <message>
        <source>&amp;Display...</source>
        <translation>&amp;Visualización...</translation>
    </message>
    <message>
        <source>Lay&amp;out...</source>
        <translation>&amp;Diseño...</translation>
    </message>
    <message>
        <source>&amp;Breaks...</source>
        <translation>&amp;Subtotales...</translation>
    </message>
    <message>
        <source>&amp;Expressions...</source>
        <translation>&amp;Expresiones...</translation>
    </message>
    <message>
        <source>&amp;Highlighting...</source>
        <translation>&amp;Resaltado...</translation>
    </message>
    <message>
        <source>&amp;List Functions...</source>
        <translation>&amp;Lista de funciones...</translation>
    </message>
    <message>
        <source>&amp;Fields...</source>
        <translation>&amp;Campos...</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Archivo</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Edición</translation>
    </message>
    <message>
        <source>&amp;Configure</source>
        <translation>&amp;Configuración</translation>
    </message>
</context>
<context>
    <name>vrel</name>
    <message>
        <source>The location of the model cannot be saved because the file &quot;%1&quot; is read-only.  Please make sure it has Write attributes.</source>
        <translation>No se puede guardar la ubicación del modelo porque el archivo «%1» es de solo lectura. Compruebe que se pueda escribir en él.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; cannot be written.</source>
        <translation>No se puede escribir en el archivo «%1».</translation>
    </message>
    <message>
        <source>Applying inverse formulas...</source>
        <translation>Aplicando fórmulas inversas...</translation>
    </message>
    <message>
        <source>Pasting...</source>
        <translation>Pegando...</translation>
    </message>
    <message>
        <source>Recalculating formulas...</source>
        <translation>Recalculando fórmulas...</translation>
    </message>
    <message>
        <source>Computing colours...</source>
        <translation>Calculando colores...</translation>
    </message>
    <message>
        <source>Region for pasting does match copied data region.</source>
        <translation>El área de pegado no coincide con el área de los datos copiados.</translation>
    </message>
    <message>
        <source>Column range is outside of table size.</source>
        <translation>El intervalo de columnas excede el tamaño de la tabla.</translation>
    </message>
    <message>
        <source>Row range is outside of table size.</source>
        <translation>El intervalo de filas excede el tamaño de la tabla.</translation>
    </message>
    <message>
        <source>Selected cell in paste area is read only and has not been changed.</source>
        <translation>La celda seleccionada en el área de pegado es de solo lectura y no se modificó.</translation>
    </message>
    <message>
        <source>At least one cell in paste area is read only and has not been changed.</source>
        <translation>Al menos una celda del área de pegado es de solo lectura y no se modificó.</translation>
    </message>
    <message>
        <source>One or more cells in paste area are read only and have not been changed.</source>
        <translation>Una o más celdas del área de pegado son de solo lectura y no se modificaron.</translation>
    </message>
    <message>
        <source>QNT Error</source>
        <translation>Error de QNT</translation>
    </message>
    <message>
        <source>Unable to open file &quot;%1&quot;.</source>
        <translation>No se pudo abrir el archivo «%1».</translation>
    </message>
    <message>
        <source>Errors in period file &quot;%1&quot;.</source>
        <translation>Hay errores en el archivo de períodos «%1».</translation>
    </message>
    <message>
        <source>Default View Title</source>
        <translation>Título de vista predeterminado</translation>
    </message>
    <message>
        <source>Exporting...</source>
        <translation>Exportando...</translation>
    </message>
    <message>
        <source>Error: Could not open file &quot;%1&quot;.</source>
        <translation>Error: no se pudo abrir el archivo «%1».</translation>
    </message>
    <message>
        <source>XML (*.xml)</source>
        <translation>XML (*.xml)</translation>
    </message>
    <message>
        <source>HTML (*.htm; *.html)</source>
        <translation>HTML (*.htm; *.html)</translation>
    </message>
    <message>
        <source>CSV (Comma delimited) (*.csv)</source>
        <translation>CSV (delimitado por comas) (*.csv)</translation>
    </message>
    <message>
        <source>Printing...</source>
        <translation>Imprimiendo...</translation>
    </message>
    <message>
        <source>Unable to print to &quot;%1&quot;.</source>
        <translation>No se pudo imprimir en «%1».</translation>
    </message>
    <message>
        <source>Closing file &quot;%1&quot; fails.</source>
        <translation>No se pudo cerrar el archivo «%1».</translation>
    </message>
    <message>
        <source>Error: Invalid output file path &quot;%1&quot;.</source>
        <translation>Error: la ruta del archivo de salida «%1» no es válida.</translation>
    </message>
    <message>
        <source>Error: Cannot find input file &quot;%1&quot;.</source>
        <translation>Error: no se encuentra el archivo de entrada «%1».</translation>
    </message>
    <message>
        <source>Error: Data does not match fields</source>
        <translation>Error: los datos no concuerdan con los campos</translation>
    </message>
    <message>
        <source>Cannot open &quot;%1&quot;</source>
        <translation>No se puede abrir «%1»</translation>
    </message>
    <message>
        <source>Open View</source>
        <translation>Abrir vista</translation>
    </message>
    <message>
        <source>Do you want to save changes to &quot;%1&quot;?</source>
        <translation>¿Desea guardar los cambios en «%1»?</translation>
    </message>
    <message>
        <source>PostScript (*.ps)</source>
        <translation>PostScript (*.ps)</translation>
    </message>
    <message>
        <source>Text (*.txt)</source>
        <translation>Texto (*.txt)</translation>
    </message>
    <message>
        <source>HTML (*.html)</source>
        <translation>HTML (*.html)</translation>
    </message>
    <message>
        <source>Matching views (%1);;All views (*.view)</source>
        <translation>Vistas compatibles (%1);;Todas las vistas (*.view)</translation>
    </message>
    <message>
        <source>File name &quot;%1&quot; contains a character that is not allowed.</source>
        <translation>El nombre de archivo «%1» contiene un carácter no permitido.</translation>
    </message>
    <message>
        <source>Unable to open file &quot;%1&quot; for loading expressions.</source>
        <translation>No se pudo abrir el archivo «%1» para cargar expresiones.</translation>
    </message>
    <message>
        <source>View file &quot;%1&quot; does not match data</source>
        <translation>El archivo de vista «%1» no concuerda con los datos</translation>
    </message>
    <message>
        <source>Save View As</source>
        <translation>Guardar vista como</translation>
    </message>
    <message>
        <source>Delete View</source>
        <translation>Eliminar vista</translation>
    </message>
    <message>
        <source>Delete view &quot;%1&quot;?</source>
        <translation>¿Eliminar la vista «%1»?</translation>
    </message>
    <message>
        <source>Cannot delete &quot;%1&quot;.</source>
        <translation>No se puede eliminar «%1».</translation>
    </message>
    <message>
        <source>Unable to open file &quot;%1&quot; for saving.</source>
        <translation>No se pudo abrir el archivo «%1» para guardarlo.</translation>
    </message>
    <message>
        <source>Data Editor</source>
        <translation>Editor de datos</translation>
    </message>
    <message>
        <source>Warning: Some data with non-unique keys was removed.</source>
        <translation>Advertencia: se quitaron algunos datos con claves duplicadas.</translation>
    </message>
    <message>
        <source>Not enough keys to properly display data
extracted by report
&quot;%s&quot;.</source>
        <translation>Faltan claves para mostrar correctamente los datos
extraídos por el informe
«%s».</translation>
    </message>
    <message>
        <source>Page %1.%2</source>
        <translation>Página %1.%2</translation>
    </message>
    <message>
        <source>Error attempting to print. Print cancelled.</source>
        <translation>Error al intentar imprimir. Se canceló la impresión.</translation>
    </message>
    <message>
        <source>Export As</source>
        <translation>Exportar como</translation>
    </message>
    <message>
        <source>Print to file</source>
        <translation>Imprimir en archivo</translation>
    </message>
    <message>
        <source>Searching...</source>
        <translation>Buscando...</translation>
    </message>
    <message>
        <source>Data Editor: Delete View</source>
        <translation>Editor de datos: Eliminar vista</translation>
    </message>
    <message>
        <source>Please specify file name for saving.</source>
        <translation>Especifique un nombre de archivo para guardar.</translation>
    </message>
    <message>
        <source>Invalid Row or Column to fill.</source>
        <translation>La fila o columna que se va a rellenar no es válida.</translation>
    </message>
    <message>
        <source>Invalid Row or Column.</source>
        <translation>La fila o columna no es válida.</translation>
    </message>
    <message>
        <source>Cannot perform change - field is read-only.</source>
        <translation>No se puede realizar el cambio: el campo es de solo lectura.</translation>
    </message>
    <message>
        <source>Filling cells...</source>
        <translation>Rellenando celdas...</translation>
    </message>
    <message>
        <source>Never</source>
        <translation>Nunca</translation>
    </message>
    <message>
        <source>Every Change</source>
        <translation>Cada cambio</translation>
    </message>
    <message>
        <source>Every 2nd Change</source>
        <translation>Cada 2 cambios</translation>
    </message>
    <message>
        <source>Every 3rd Change</source>
        <translation>Cada 3 cambios</translation>
    </message>
    <message>
        <source>Every 4th Change</source>
        <translation>Cada 4 cambios</translation>
    </message>
    <message>
        <source>Every 5th Change</source>
        <translation>Cada 5 cambios</translation>
    </message>
    <message>
        <source>Every 6th Change</source>
        <translation>Cada 6 cambios</translation>
    </message>
    <message>
        <source>Every 7th Change</source>
        <translation>Cada 7 cambios</translation>
    </message>
    <message>
        <source>Every 8th Change</source>
        <translation>Cada 8 cambios</translation>
    </message>
    <message>
        <source>Every 9th Change</source>
        <translation>Cada 9 cambios</translation>
    </message>
    <message>
        <source>Every 10th Change</source>
        <translation>Cada 10 cambios</translation>
    </message>
    <message>
        <source>Every 12th Change</source>
        <translation>Cada 12 cambios</translation>
    </message>
    <message>
        <source>Every 24th Change</source>
        <translation>Cada 24 cambios</translation>
    </message>
    <message>
        <source>Every 28th Change</source>
        <translation>Cada 28 cambios</translation>
    </message>
    <message>
        <source>At End</source>
        <translation>Al final</translation>
    </message>
    <message>
        <source>Same as Frequency</source>
        <translation>Según la frecuencia</translation>
    </message>
    <message>
        <source>At 1st Change</source>
        <translation>En el 1.er cambio</translation>
    </message>
    <message>
        <source>At 2nd Change</source>
        <translation>En el 2.º cambio</translation>
    </message>
    <message>
        <source>At 3rd Change</source>
        <translation>En el 3.er cambio</translation>
    </message>
    <message>
        <source>At 4th Change</source>
        <translation>En el 4.º cambio</translation>
    </message>
    <message>
        <source>At 5th Change</source>
        <translation>En el 5.º cambio</translation>
    </message>
    <message>
        <source>At 6th Change</source>
        <translation>En el 6.º cambio</translation>
    </message>
    <message>
        <source>At 7th Change</source>
        <translation>En el 7.º cambio</translation>
    </message>
    <message>
        <source>At 8th Change</source>
        <translation>En el 8.º cambio</translation>
    </message>
    <message>
        <source>At 9th Change</source>
        <translation>En el 9.º cambio</translation>
    </message>
    <message>
        <source>At 10th Change</source>
        <translation>En el 10.º cambio</translation>
    </message>
    <message>
        <source>At 11th Change</source>
        <translation>En el 11.º cambio</translation>
    </message>
    <message>
        <source>Every %1 Changes</source>
        <translation>Cada %1 cambios</translation>
    </message>
    <message>
        <source>At Change %1</source>
        <translation>En el cambio %1</translation>
    </message>
    <message>
        <source>At End (%1)</source>
        <translation>Al final (%1)</translation>
    </message>
    <message>
        <source>Nothing</source>
        <translation>Nada</translation>
    </message>
    <message>
        <source>Nil</source>
        <translation>Nada</translation>
    </message>
    <message>
        <source>Sum</source>
        <translation>Suma</translation>
    </message>
    <message>
        <source>Minimum</source>
        <translation>Mínimo</translation>
    </message>
    <message>
        <source>Min</source>
        <translation>Mín.</translation>
    </message>
    <message>
        <source>Maximum</source>
        <translation>Máximo</translation>
    </message>
    <message>
        <source>Max</source>
        <translation>Máx.</translation>
    </message>
    <message>
        <source>Average</source>
        <translation>Promedio</translation>
    </message>
    <message>
        <source>Avg</source>
        <translation>Prom.</translation>
    </message>
    <message>
        <source>First</source>
        <translation>Primero</translation>
    </message>
    <message>
        <source>1st</source>
        <translation>1.º</translation>
    </message>
    <message>
        <source>Last</source>
        <translation>Último</translation>
    </message>
    <message>
        <source>Copying...</source>
        <translation>Copiando...</translation>
    </message>
    <message>
        <source>The selection is too large to be copied.</source>
        <translation>La selección es demasiado grande para copiarla.</translation>
    </message>
    <message>
        <source>The change could not be sent to the host application: its message file cannot be written.</source>
        <translation>No se pudo enviar el cambio a la aplicación host: no se puede escribir en su archivo de mensajes.</translation>
    </message>
    <message>
        <source>The values of &quot;%1&quot; cannot be changed.</source>
        <translation>Los valores de «%1» no se pueden modificar.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a date.</source>
        <translation>«%1» no es una fecha.</translation>
    </message>
    <message>
        <source>Some of the pasted texts are no values and have not been set; the first is &quot;%1&quot;.</source>
        <translation>Algunos de los textos pegados no son valores válidos y no se aplicaron; el primero es «%1».</translation>
    </message>
    <message>
        <source>Import Expressions</source>
        <translation>Importar expresiones</translation>
    </message>
    <message>
        <source>View file &quot;%1&quot; has no expressions.</source>
        <translation>El archivo de vista «%1» no contiene expresiones.</translation>
    </message>
    <message>
        <source>There is not enough memory for the imported expressions.</source>
        <translation>No hay memoria suficiente para las expresiones importadas.</translation>
    </message>
    <message>
        <source>Import Highlighting</source>
        <translation>Importar resaltado</translation>
    </message>
    <message>
        <source>View file &quot;%1&quot; has none of the fields of this report.</source>
        <translation>El archivo de vista «%1» no contiene ningún campo de este informe.</translation>
    </message>
</context>
<context>
    <name>vrel::BreaksDialogImpl</name>
    <message>
        <source>Field</source>
        <translation>Campo</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Active</source>
        <translation>Activo</translation>
    </message>
    <message>
        <source>Frequency</source>
        <translation>Frecuencia</translation>
    </message>
    <message>
        <source>First Break</source>
        <translation>Primer subtotal</translation>
    </message>
    <message>
        <source>Computes</source>
        <translation>Cálculo</translation>
    </message>
    <message>
        <source>&amp;Actions</source>
        <translation>Acci&amp;ones</translation>
    </message>
    <message>
        <source>Suspend All Breaks</source>
        <translation>Suspender todos los subtotales</translation>
    </message>
    <message>
        <source>Activate All Breaks</source>
        <translation>Activar todos los subtotales</translation>
    </message>
    <message>
        <source>active</source>
        <translation>activo</translation>
    </message>
    <message>
        <source>suspended</source>
        <translation>suspendido</translation>
    </message>
</context>
<context>
    <name>vrel::ColumnPopupMenu</name>
    <message>
        <source>Show Data</source>
        <translation>Mostrar datos</translation>
    </message>
    <message>
        <source>Hide Data</source>
        <translation>Ocultar datos</translation>
    </message>
</context>
<context>
    <name>vrel::ConfigureBreakDialog</name>
    <message>
        <source>Data Field</source>
        <translation>Campo de datos</translation>
    </message>
    <message>
        <source>Operation</source>
        <translation>Operación</translation>
    </message>
</context>
<context>
    <name>vrel::ConfigureDesk</name>
    <message>
        <source>Period File</source>
        <translation>Archivo de períodos</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Todos los archivos (*)</translation>
    </message>
</context>
<context>
    <name>vrel::ConfigureDisplayDialogImpl</name>
    <message>
        <source>&lt;default&gt;</source>
        <translation>&lt;predeterminado&gt;</translation>
    </message>
    <message>
        <source>Example: %1</source>
        <translation>Ejemplo: %1</translation>
    </message>
</context>
<context>
    <name>vrel::ConfigureLayoutDialog</name>
    <message>
        <source>Layout</source>
        <translation>Diseño</translation>
    </message>
    <message>
        <source>Use the buttons below to reorder the tabular data in the report. You will see the effects of reordering in the report in the main window</source>
        <translation>Use los botones siguientes para reordenar los datos tabulares del informe. El resultado se mostrará en el informe de la ventana principal</translation>
    </message>
    <message>
        <source>By keyboard: Ctrl+Up and Ctrl+Down move a field within its area, Ctrl+Left and Ctrl+Right move it to the area beside it.</source>
        <translation>Con el teclado: Ctrl+Arriba y Ctrl+Abajo mueven un campo dentro de su área; Ctrl+Izquierda y Ctrl+Derecha lo mueven al área contigua.</translation>
    </message>
    <message>
        <source>Move &amp;Up</source>
        <translation>Mover hacia &amp;arriba</translation>
    </message>
    <message>
        <source>Move &amp;Down</source>
        <translation>Mover hacia a&amp;bajo</translation>
    </message>
</context>
<context>
    <name>vrel::CopyPasteLineEdit</name>
    <message>
        <source>Cell value</source>
        <translation>Valor de la celda</translation>
    </message>
</context>
<context>
    <name>vrel::DataTable</name>
    <message>
        <source>(Copy)</source>
        <translation>(Copiar)</translation>
    </message>
    <message>
        <source>(Paste)</source>
        <translation>(Pegar)</translation>
    </message>
</context>
<context>
    <name>vrel::EditDesk</name>
    <message>
        <source>Cannot compute value</source>
        <translation>No se puede calcular el valor</translation>
    </message>
    <message>
        <source>Cells that cannot be empty and stay as they were: %1 of %2.</source>
        <translation>Celdas que no pueden estar vacías y no se modificaron: %1 de %2.</translation>
    </message>
    <message>
        <source>Cells that do not take &quot;%1&quot; and stay as they were: %2 of %3.</source>
        <translation>Celdas que no admiten «%1» y no se modificaron: %2 de %3.</translation>
    </message>
</context>
<context>
    <name>vrel::ExprEdtrView</name>
    <message>
        <source>Cannot apply the inverse formula</source>
        <translation>No se puede aplicar la fórmula inversa</translation>
    </message>
    <message>
        <source>Please enter a formula.</source>
        <translation>Escriba una fórmula.</translation>
    </message>
    <message>
        <source>Cannot apply the formula</source>
        <translation>No se puede aplicar la fórmula</translation>
    </message>
    <message>
        <source>Please enter a field name.</source>
        <translation>Escriba un nombre de campo.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be the name of a field: formulas could not refer to it. A name must not hold colons or quotes, begin with &quot;#&quot; or be longer than 127 bytes.</source>
        <translation>«%1» no puede ser el nombre de un campo: las fórmulas no podrían hacer referencia a él. Un nombre no puede contener dos puntos ni comillas, empezar por «#» ni superar los 127 bytes.</translation>
    </message>
</context>
<context>
    <name>vrel::ExpressionErrorDialog</name>
    <message>
        <source>Expression Error</source>
        <translation>Error en la expresión</translation>
    </message>
    <message>
        <source>Syntax error in expression:</source>
        <translation>Error de sintaxis en la expresión:</translation>
    </message>
    <message>
        <source>Evaluation error in expression:</source>
        <translation>Error al evaluar la expresión:</translation>
    </message>
</context>
<context>
    <name>vrel::ExpressionsDialogImpl</name>
    <message>
        <source>&amp;New</source>
        <translation>&amp;Nueva</translation>
    </message>
    <message>
        <source>&amp;Edit...</source>
        <translation>&amp;Editar...</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>E&amp;liminar</translation>
    </message>
    <message>
        <source>Data Editor: missing selection</source>
        <translation>Editor de datos: sin selección</translation>
    </message>
    <message>
        <source>Please select an expression to edit.</source>
        <translation>Seleccione una expresión para editarla.</translation>
    </message>
    <message>
        <source>Please select an expression to delete.</source>
        <translation>Seleccione una expresión para eliminarla.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be deleted: it stands among the fields of the table.</source>
        <translation>No se puede eliminar «%1»: está situado entre los campos de la tabla.</translation>
    </message>
    <message>
        <source>The formulas of these fields refer to &quot;%1&quot; and will have no value without it:
%2
Delete &quot;%1&quot;?</source>
        <translation>Las fórmulas de estos campos hacen referencia a «%1» y no tendrán valor sin él:
%2
¿Desea eliminar «%1»?</translation>
    </message>
    <message>
        <source>Data Editor: Delete Expression</source>
        <translation>Editor de datos: Eliminar expresión</translation>
    </message>
</context>
<context>
    <name>vrel::FieldButton</name>
    <message>
        <source>Ctrl with an arrow key moves the field.</source>
        <translation>Ctrl con una tecla de dirección mueve el campo.</translation>
    </message>
</context>
<context>
    <name>vrel::FieldDialogImpl</name>
    <message>
        <source>Field</source>
        <translation>Campo</translation>
    </message>
    <message>
        <source>Classification</source>
        <translation>Clasificación</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Data</source>
        <translation>datos</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>clave</translation>
    </message>
    <message>
        <source>Data Editor: classification error</source>
        <translation>Editor de datos: Error de clasificación</translation>
    </message>
    <message>
        <source>There must always be at least one %1 field.</source>
        <translation>Siempre debe haber al menos un campo de %1.</translation>
    </message>
    <message>
        <source>Some values cannot be kept in the new type of their field:</source>
        <translation>Algunos valores no se pueden conservar con el nuevo tipo de su campo:</translation>
    </message>
    <message>
        <source>%1 as %2: %3 of %4 values, the first is &quot;%5&quot;</source>
        <translation>%1 como %2: %3 de %4 valores; el primero es «%5»</translation>
    </message>
    <message>
        <source>and more in %1 other fields</source>
        <translation>y más en otros campos (%1)</translation>
    </message>
    <message>
        <source>They will be other values, and nothing brings them back. Change the types all the same?</source>
        <translation>Se convertirán en otros valores y no se podrán recuperar. ¿Desea cambiar los tipos de todos modos?</translation>
    </message>
</context>
<context>
    <name>vrel::FindBar</name>
    <message>
        <source>Ne&amp;xt</source>
        <translation>&amp;Siguiente</translation>
    </message>
    <message>
        <source>Pre&amp;vious</source>
        <translation>An&amp;terior</translation>
    </message>
    <message>
        <source>Not found</source>
        <translation>No se encontró</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>Búsqueda cancelada</translation>
    </message>
    <message>
        <source>Continued from the top</source>
        <translation>Se continuó desde el principio</translation>
    </message>
    <message>
        <source>Continued from the bottom</source>
        <translation>Se continuó desde el final</translation>
    </message>
    <message>
        <source>Fi&amp;nd:</source>
        <translation>&amp;Buscar:</translation>
    </message>
    <message>
        <source>Close the find bar</source>
        <translation>Cerrar la barra de búsqueda</translation>
    </message>
    <message>
        <source>Close the find bar (Esc)</source>
        <translation>Cerrar la barra de búsqueda (Esc)</translation>
    </message>
</context>
<context>
    <name>vrel::FormulaEdit</name>
    <message>
        <source>The formula is not complete.</source>
        <translation>La fórmula está incompleta.</translation>
    </message>
    <message>
        <source>Syntax error.</source>
        <translation>Error de sintaxis.</translation>
    </message>
    <message>
        <source>There is no function &quot;%1&quot;.</source>
        <translation>No existe la función «%1».</translation>
    </message>
    <message>
        <source>Wrong number of arguments: %1</source>
        <translation>Número de argumentos incorrecto: %1</translation>
    </message>
    <message>
        <source>There is no field &quot;%1&quot;.</source>
        <translation>No existe el campo «%1».</translation>
    </message>
    <message>
        <source>The field &quot;%1&quot; holds no numbers.</source>
        <translation>El campo «%1» no contiene números.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a function; write &quot;%1()&quot;.</source>
        <translation>«%1» es una función; escriba «%1()».</translation>
    </message>
</context>
<context>
    <name>vrel::FormulaListDialog</name>
    <message>
        <source>There is not enough memory for this change.</source>
        <translation>No hay memoria suficiente para este cambio.</translation>
    </message>
    <message>
        <source>The formula that is being edited is not applied yet. Discard it?</source>
        <translation>La fórmula que se está editando aún no se ha aplicado. ¿Desea descartarla?</translation>
    </message>
    <message>
        <source>Field Name</source>
        <translation>Nombre del campo</translation>
    </message>
    <message>
        <source>Formula</source>
        <translation>Fórmula</translation>
    </message>
</context>
<context>
    <name>vrel::FrozenColumnTablesImpl</name>
    <message>
        <source>Row labels</source>
        <translation>Etiquetas de fila</translation>
    </message>
    <message>
        <source>Report data</source>
        <translation>Datos del informe</translation>
    </message>
</context>
<context>
    <name>vrel::FunctionsDialog</name>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Usage</source>
        <translation>Sintaxis</translation>
    </message>
</context>
<context>
    <name>vrel::HighlightEdtrView</name>
    <message>
        <source>No other field has a highlight formula.</source>
        <translation>Ningún otro campo tiene una fórmula de resaltado.</translation>
    </message>
    <message>
        <source>Takes over the highlight formula of another field.</source>
        <translation>Toma la fórmula de resaltado de otro campo.</translation>
    </message>
    <message>
        <source>Cannot apply the highlight formula</source>
        <translation>No se puede aplicar la fórmula de resaltado</translation>
    </message>
</context>
<context>
    <name>vrel::HighlightingDialogImpl</name>
    <message>
        <source>&amp;Edit...</source>
        <translation>&amp;Editar...</translation>
    </message>
    <message>
        <source>Data Editor: missing highlight</source>
        <translation>Editor de datos: sin resaltado seleccionado</translation>
    </message>
    <message>
        <source>Please select an highlight expression to edit</source>
        <translation>Seleccione una expresión de resaltado para editarla</translation>
    </message>
</context>
<context>
    <name>vrel::PrintOptionsDialogImpl</name>
    <message>
        <source>No Printers Available</source>
        <translation>No hay impresoras disponibles</translation>
    </message>
</context>
<context>
    <name>vrel::SelectionStatus</name>
    <message>
        <source>What the selected cells come to</source>
        <translation>Resultados de las celdas seleccionadas</translation>
    </message>
    <message>
        <source>Counting…</source>
        <translation>Calculando…</translation>
    </message>
    <message>
        <source>Count: %1</source>
        <translation>Recuento: %1</translation>
    </message>
    <message>
        <source>Sum: %1</source>
        <translation>Suma: %1</translation>
    </message>
    <message>
        <source>Average: %1</source>
        <translation>Promedio: %1</translation>
    </message>
    <message>
        <source>Minimum: %1</source>
        <translation>Mínimo: %1</translation>
    </message>
    <message>
        <source>Maximum: %1</source>
        <translation>Máximo: %1</translation>
    </message>
</context>
<context>
    <name>vrel::VrelMainWindow</name>
    <message>
        <source>Output of: %1</source>
        <translation>Resultado de: %1</translation>
    </message>
    <message>
        <source>Data Editor</source>
        <translation>Editor de datos</translation>
    </message>
    <message>
        <source>Data Editor: Working...</source>
        <translation>Editor de datos: Procesando...</translation>
    </message>
</context>
<context>
    <name>vrel::ZTabs</name>
    <message>
        <source>Previous page</source>
        <translation>Página anterior</translation>
    </message>
    <message>
        <source>Next page</source>
        <translation>Página siguiente</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Páginas</translation>
    </message>
</context>
</TS>
