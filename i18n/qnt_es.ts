<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
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
