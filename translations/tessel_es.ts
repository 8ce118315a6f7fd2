<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>DictionaryTreeModel</name>
    <message>
        <source>Entity</source>
        <translation>Entidad</translation>
    </message>
    <message>
        <source>Entity name already exists as a group name</source>
        <translation>El nombre de la entidad ya existe como nombre de grupo</translation>
    </message>
    <message>
        <source>Entity name already exists</source>
        <translation>El nombre de la entidad ya existe</translation>
    </message>
    <message>
        <source>Entity name already exists as an alias name</source>
        <translation>El nombre de la entidad ya existe como alias</translation>
    </message>
    <message>
        <source>Invalid string</source>
        <translation>Cadena no válida</translation>
    </message>
    <message>
        <source>Chain with length greater than 50</source>
        <translation>Cadena con longitud mayor que 50</translation>
    </message>
</context>
<context>
    <name>EntityModel</name>
    <message>
        <source>Entity</source>
        <translation>Entidad</translation>
    </message>
</context>
<context>
    <name>UtilForms</name>
    <message>
        <source>Error</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Información</translation>
    </message>
</context>
<context>
    <name>VarRangeModel</name>
    <message>
        <source>Minimum</source>
        <translation>Mínimo</translation>
    </message>
    <message>
        <source>Maximum</source>
        <translation>Máximo</translation>
    </message>
</context>
<context>
    <name>VarValueLabelDiccionaryModel</name>
    <message>
        <source>Code</source>
        <translation>Código</translation>
    </message>
    <message>
        <source>Label</source>
        <translation>Etiqueta</translation>
    </message>
</context>
<context>
    <name>VariableDiccionaryModel</name>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Alias</source>
        <translation>Alias</translation>
    </message>
    <message>
        <source>Label</source>
        <translation>Etiqueta</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Grupo</translation>
    </message>
    <message>
        <source>Tag</source>
        <translation>Tag</translation>
    </message>
    <message>
        <source>The typed character string already exists</source>
        <translation>La cadena de caracteres escrita ya existe</translation>
    </message>
    <message>
        <source>The typed character string already exists as the alias of a variable</source>
        <translation>La cadena de caracteres escrita ya existe como alias de una variable</translation>
    </message>
    <message>
        <source>The value already exists as the name/alias of a variable alias </source>
        <translation>El valor ya existe como nombre/alias de un alias de variable </translation>
    </message>
    <message>
        <source>The value already exists as the name-entity/name-variable/alias</source>
        <translation>El valor ya existe como nombre de entidad/nombre de variable/alias</translation>
    </message>
    <message>
        <source>Invalid string</source>
        <translation>Cadena no válida</translation>
    </message>
    <message>
        <source>RefCode Variable</source>
        <translation>Variable RefCode</translation>
    </message>
    <message>
        <source>Variable identified as RefCode.
Keep it as RefCode?</source>
        <translation>La variable está identificada como RefCode.
¿Mantenerla como RefCode?</translation>
    </message>
    <message>
        <source>already exists.</source>
        <translation>ya existe.</translation>
    </message>
    <message>
        <source>Overwrite?</source>
        <translation>¿Sobrescribir?</translation>
    </message>
    <message>
        <source>Overwrite variable</source>
        <translation>Sobrescribir variable</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Advertencia</translation>
    </message>
    <message>
        <source>Duplicated names</source>
        <translation>Nombres duplicados</translation>
    </message>
    <message>
        <source>Error creating</source>
        <translation>Error al crear</translation>
    </message>
    <message>
        <source>Must be selectable entity.</source>
        <translation>Debe ser una entidad seleccionable.</translation>
    </message>
</context>
<context>
    <name>VariableModel</name>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Label</source>
        <translation>Etiqueta</translation>
    </message>
    <message>
        <source>Alias</source>
        <translation>Alias</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Grupo</translation>
    </message>
    <message>
        <source>Tag</source>
        <translation>Tag</translation>
    </message>
</context>
<context>
    <name>VariableModelDownStep4</name>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Label</source>
        <translation>Etiqueta</translation>
    </message>
    <message>
        <source>Alias</source>
        <translation>Alias</translation>
    </message>
</context>
<context>
    <name>VariableModelSplitStep3</name>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Label</source>
        <translation>Etiqueta</translation>
    </message>
    <message>
        <source>Alias</source>
        <translation>Alias</translation>
    </message>
</context>
<context>
    <name>dictionaryTreeModelDownload</name>
    <message>
        <source>Entity</source>
        <translation>Entidad</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Describes censuses and surveys: entities, variables, value labels.</source>
        <translation>Describe censos y encuestas: entidades, variables, etiquetas de valor.</translation>
    </message>
    <message>
        <source>Write debug lines to standard error.</source>
        <translation>Escribe líneas de depuración en la salida de error estándar.</translation>
    </message>
    <message>
        <source>Save what the window shows to &lt;file&gt; and end.</source>
        <translation>Guarda lo que muestra la ventana en &lt;file&gt; y termina.</translation>
    </message>
    <message>
        <source>Go to the place that &lt;pointer&gt; names, as &quot;tessel check&quot; prints it.</source>
        <translation>Va al lugar que indica &lt;pointer&gt;, tal como lo muestra &quot;tessel check&quot;.</translation>
    </message>
    <message>
        <source>End as soon as the window is there, to try an installation.</source>
        <translation>Termina en cuanto aparece la ventana, para probar una instalación.</translation>
    </message>
    <message>
        <source>The dictionary to open.</source>
        <translation>El diccionario que se abre.</translation>
    </message>
</context>
<context>
    <name>tessel::documents</name>
    <message>
        <source>expected an object at the top, found an array</source>
        <translation>se esperaba un objeto en el nivel superior y se encontró un arreglo</translation>
    </message>
    <message>
        <source>expected an object at the top, found a text</source>
        <translation>se esperaba un objeto en el nivel superior y se encontró un texto</translation>
    </message>
    <message>
        <source>expected an object at the top, found a number</source>
        <translation>se esperaba un objeto en el nivel superior y se encontró un número</translation>
    </message>
    <message>
        <source>expected an object at the top, found %1</source>
        <translation>se esperaba un objeto en el nivel superior y se encontró %1</translation>
    </message>
    <message>
        <source>cannot be read: it is a folder; name a file</source>
        <translation>no se puede leer: es una carpeta; indique un archivo</translation>
    </message>
    <message>
        <source>cannot be read: %1</source>
        <translation>no se puede leer: %1</translation>
    </message>
    <message>
        <source>is larger than 1 GiB; expected a smaller document</source>
        <translation>ocupa más de 1 GiB; se esperaba un documento más pequeño</translation>
    </message>
    <message>
        <source>expected text in UTF-8, found UTF-16; save the file in UTF-8</source>
        <translation>se esperaba texto en UTF-8 y se encontró UTF-16; guarde el archivo en UTF-8</translation>
    </message>
    <message>
        <source>expected an object at the top, found nothing: the file is empty</source>
        <translation>se esperaba un objeto en el nivel superior y no se encontró nada: el archivo está vacío</translation>
    </message>
    <message>
        <source>cannot be written: it is a folder; name a file</source>
        <translation>no se puede escribir: es una carpeta; indique un archivo</translation>
    </message>
    <message>
        <source>cannot be written: %1</source>
        <translation>no se puede escribir: %1</translation>
    </message>
    <message>
        <source>cannot be written: %1; nothing was changed</source>
        <translation>no se puede escribir: %1; no se cambió nada</translation>
    </message>
    <message>
        <source>expected &quot;,&quot; or &quot;}&quot; after a value in an object</source>
        <translation>se esperaba &quot;,&quot; o &quot;}&quot; después de un valor en un objeto</translation>
    </message>
    <message>
        <source>expected &quot;:&quot; after a key</source>
        <translation>se esperaba &quot;:&quot; después de una clave</translation>
    </message>
    <message>
        <source>expected &quot;]&quot; at the end of an array</source>
        <translation>se esperaba &quot;]&quot; al final de un arreglo</translation>
    </message>
    <message>
        <source>expected &quot;,&quot; between two values</source>
        <translation>se esperaba &quot;,&quot; entre dos valores</translation>
    </message>
    <message>
        <source>expected a value: an object, an array, a text in double quotes, a number, true, false or null</source>
        <translation>se esperaba un valor: un objeto, un arreglo, un texto entre comillas dobles, un número, true, false o null</translation>
    </message>
    <message>
        <source>expected the rest of the document after a number</source>
        <translation>se esperaba el resto del documento después de un número</translation>
    </message>
    <message>
        <source>expected a number that JSON and double precision can hold</source>
        <translation>se esperaba un número que JSON y la doble precisión puedan representar</translation>
    </message>
    <message>
        <source>expected one of \&quot; \\ \/ \b \f \n \r \t \uXXXX after a backslash</source>
        <translation>se esperaba una de las secuencias \&quot; \\ \/ \b \f \n \r \t \uXXXX con la barra invertida</translation>
    </message>
    <message>
        <source>expected text in UTF-8; save the file in that encoding</source>
        <translation>se esperaba texto en UTF-8; guarde el archivo con esa codificación</translation>
    </message>
    <message>
        <source>expected a double quote at the end of a text</source>
        <translation>se esperaban comillas dobles al final de un texto</translation>
    </message>
    <message>
        <source>expected a key in double quotes</source>
        <translation>se esperaba una clave entre comillas dobles</translation>
    </message>
    <message>
        <source>objects and arrays stand more than 1024 deep in one another; expected fewer levels</source>
        <translation>hay objetos y arreglos anidados en más de 1024 niveles; se esperaban menos niveles</translation>
    </message>
    <message>
        <source>the document is too large; expected fewer values</source>
        <translation>el documento es demasiado grande; se esperaban menos valores</translation>
    </message>
    <message>
        <source>expected nothing more after the end of the document</source>
        <translation>no se esperaba nada más después del final del documento</translation>
    </message>
    <message>
        <source>expected a JSON document</source>
        <translation>se esperaba un documento JSON</translation>
    </message>
    <message>
        <source>%1, but the file ends here; it may have been cut off</source>
        <translation>%1, pero el archivo termina aquí; puede estar truncado</translation>
    </message>
</context>
<context>
    <name>tessel::documents::Loss</name>
    <message>
        <source>%1 is not written</source>
        <translation>%1 no se escribe</translation>
    </message>
    <message>
        <source>%1 is written as %2</source>
        <translation>%1 se escribe como %2</translation>
    </message>
    <message>
        <source>the key is given more than once and only one of its values is kept</source>
        <translation>la clave aparece más de una vez y solo se conserva uno de sus valores</translation>
    </message>
    <message>
        <source>what stands here is not JSON as other programs read it; it was read as well as could be</source>
        <translation>lo que aparece aquí no es JSON tal como lo leen otros programas; se leyó lo mejor posible</translation>
    </message>
</context>
<context>
    <name>tessel::documents::NameCheck</name>
    <message>
        <source>the dictionary itself</source>
        <translation>el propio diccionario</translation>
    </message>
    <message>
        <source>the entity has no name; give it one</source>
        <translation>la entidad no tiene nombre; asígnele uno</translation>
    </message>
    <message>
        <source>an entity&apos;s name is a letter or _ followed by letters, digits and _</source>
        <translation>el nombre de una entidad es una letra o _ seguida de letras, dígitos y _</translation>
    </message>
    <message>
        <source>an entity&apos;s name holds no control character, double quote or backslash</source>
        <translation>el nombre de una entidad no lleva caracteres de control, comillas dobles ni barras invertidas</translation>
    </message>
    <message>
        <source>an entity&apos;s name has at most %1 characters; this one has %2</source>
        <translation>el nombre de una entidad tiene como máximo %1 caracteres; este tiene %2</translation>
    </message>
    <message>
        <source>the name is already that of %1; rename one of them</source>
        <translation>%1 ya lleva ese nombre; cambie uno de los dos</translation>
    </message>
    <message>
        <source>the name is also an alias of an entity; change one of them</source>
        <translation>el nombre es también el alias de una entidad; cambie uno de los dos</translation>
    </message>
    <message>
        <source>the name is also a group of variables; change one of them</source>
        <translation>el nombre es también un grupo de variables; cambie uno de los dos</translation>
    </message>
</context>
<context>
    <name>tessel::documents::VariableFindings</name>
    <message>
        <source>a variable&apos;s label holds no control character, double quote or backslash</source>
        <translation>la etiqueta de una variable no lleva caracteres de control, comillas dobles ni barras invertidas</translation>
    </message>
    <message>
        <source>%1 is no type; a variable is a string, integer, real or bool</source>
        <translation>%1 no es un tipo; una variable es string, integer, real o bool</translation>
    </message>
    <message>
        <source>%1, which is to hold the entity&apos;s code, is none of its variables; choose one or add it</source>
        <translation>%1, que debe contener el código de la entidad, no es una de sus variables; elija una o agréguela</translation>
    </message>
    <message>
        <source>%1, which is to hold the entity&apos;s label, is none of its variables; choose one or add it</source>
        <translation>%1, que debe contener la etiqueta de la entidad, no es una de sus variables; elija una o agréguela</translation>
    </message>
    <message>
        <source>%1, which is to hold the entity&apos;s weight, is none of its variables; choose one or add it</source>
        <translation>%1, que debe contener el ponderador de la entidad, no es una de sus variables; elija una o agréguela</translation>
    </message>
    <message>
        <source>a variable&apos;s name holds no control character, double quote or backslash</source>
        <translation>el nombre de una variable no lleva caracteres de control, comillas dobles ni barras invertidas</translation>
    </message>
    <message>
        <source>the name is already that of a variable before it; rename one of them</source>
        <translation>una variable anterior ya lleva ese nombre; cambie uno de los dos</translation>
    </message>
    <message>
        <source>the name is also that of an entity; rename one of them</source>
        <translation>una entidad lleva también ese nombre; cambie uno de los dos</translation>
    </message>
    <message>
        <source>the code %1 is no such number as the variable&apos;s type wants and would be saved as 0; change the code or the type</source>
        <translation>el código %1 no es un número como el que exige el tipo de la variable y se guardaría como 0; cambie el código o el tipo</translation>
    </message>
    <message>
        <source>the minimum %1 is above the maximum %2; exchange them</source>
        <translation>el mínimo %1 es mayor que el máximo %2; intercámbielos</translation>
    </message>
    <message>
        <source>the variable has no name; give it one</source>
        <translation>la variable no tiene nombre; asígnele uno</translation>
    </message>
</context>
<context>
    <name>tessel::editor</name>
    <message>
        <source>About Tessel</source>
        <translation>Acerca de Tessel</translation>
    </message>
    <message>
        <source>Tessel %1

Data dictionaries for hierarchical statistical databases.</source>
        <translation>Tessel %1

Diccionarios de datos para bases de datos estadísticas jerárquicas.</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>Atajos de teclado</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>Tecla</translation>
    </message>
    <message>
        <source>Does</source>
        <translation>Acción</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menú</translation>
    </message>
    <message>
        <source>Type into the cell</source>
        <translation>Escribir en la celda</translation>
    </message>
    <message>
        <source>Tables</source>
        <translation>Tablas</translation>
    </message>
    <message>
        <source>Return</source>
        <translation>Enter</translation>
    </message>
    <message>
        <source>Keep what was typed and go to the next row</source>
        <translation>Conservar lo escrito e ir a la fila siguiente</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1, line %2, column %3: %4</source>
        <translation>%1, línea %2, columna %3: %4</translation>
    </message>
</context>
<context>
    <name>tessel::editor::AutoSave</name>
    <message>
        <source>No copy of the unsaved work could be kept in %1: %2.</source>
        <translation>No se pudo conservar una copia del trabajo no guardado en %1: %2.</translation>
    </message>
</context>
<context>
    <name>tessel::editor::CopyLabelsDialog</name>
    <message>
        <source>Copy labels</source>
        <translation>Copiar etiquetas</translation>
    </message>
    <message numerus="yes">
        <source>&amp;Variables that are to have the %n labels of %1 in place of their own:</source>
        <translation>
            <numerusform>&amp;Variables que recibirán la %n etiqueta de %1 en lugar de las propias:</numerusform>
            <numerusform>&amp;Variables que recibirán las %n etiquetas de %1 en lugar de las propias:</numerusform>
        </translation>
    </message>
    <message>
        <source>Variables</source>
        <translation>Variables</translation>
    </message>
    <message>
        <source>%1 — %2</source>
        <translation>%1 — %2</translation>
    </message>
</context>
<context>
    <name>tessel::editor::CsvSourceTab</name>
    <message>
        <source>CSV fields</source>
        <translation>Campos CSV</translation>
    </message>
    <message>
        <source>Opens a CSV file; only its header is read.</source>
        <translation>Abre un archivo CSV; solo se lee el encabezado.</translation>
    </message>
    <message>
        <source>Open a CSV file to see its fields here.</source>
        <translation>Abra un archivo CSV para ver aquí sus campos.</translation>
    </message>
    <message>
        <source>Separator of the CSV file</source>
        <translation>Separador del archivo CSV</translation>
    </message>
    <message>
        <source>What stands between the fields; a choice reads the header again.</source>
        <translation>Lo que separa los campos; al elegir otro se vuelve a leer el encabezado.</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automático</translation>
    </message>
    <message>
        <source>Comma</source>
        <translation>Coma</translation>
    </message>
    <message>
        <source>Semicolon</source>
        <translation>Punto y coma</translation>
    </message>
    <message>
        <source>Tab</source>
        <translation>Tabulador</translation>
    </message>
    <message>
        <source>Bar</source>
        <translation>Barra vertical</translation>
    </message>
    <message>
        <source>&amp;Separator:</source>
        <translation>Sepa&amp;rador:</translation>
    </message>
    <message>
        <source>Open a CSV file</source>
        <translation>Abrir un archivo CSV</translation>
    </message>
    <message>
        <source>CSV files (*.csv *.txt *.tsv);;All files (*)</source>
        <translation>Archivos CSV (*.csv *.txt *.tsv);;Todos los archivos (*)</translation>
    </message>
    <message>
        <source>%1: 1 field in %2.</source>
        <translation>%1: 1 campo en %2.</translation>
    </message>
    <message numerus="yes">
        <source>%1: %n fields in %2.</source>
        <translation>
            <numerusform>%1: %n campo en %2.</numerusform>
            <numerusform>%1: %n campos en %2.</numerusform>
        </translation>
    </message>
    <message>
        <source>Separator: %1.</source>
        <translation>Separador: %1.</translation>
    </message>
</context>
<context>
    <name>tessel::editor::DatabasePage</name>
    <message>
        <source>B&amp;rowse…</source>
        <translation>E&amp;xaminar…</translation>
    </message>
    <message>
        <source>Choose the folder of the database</source>
        <translation>Elegir la carpeta de la base de datos</translation>
    </message>
    <message>
        <source>Bro&amp;wse…</source>
        <translation>Exa&amp;minar…</translation>
    </message>
    <message>
        <source>Choose the source file</source>
        <translation>Elegir el archivo de origen</translation>
    </message>
    <message>
        <source>Names that the dictionary does not have</source>
        <translation>Nombres que el diccionario no contiene</translation>
    </message>
    <message>
        <source>Values that saving does not keep</source>
        <translation>Valores que no se conservan al guardar</translation>
    </message>
    <message>
        <source>Database</source>
        <translation>Base de datos</translation>
    </message>
    <message>
        <source>Which database is built, where, and from which source file.</source>
        <translation>Qué base de datos se construye, dónde y a partir de qué archivo de origen.</translation>
    </message>
    <message>
        <source>Database name</source>
        <translation>Nombre de la base de datos</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Carpeta</translation>
    </message>
    <message>
        <source>The folder in which the database is built.</source>
        <translation>La carpeta en la que se construye la base de datos.</translation>
    </message>
    <message>
        <source>Source file</source>
        <translation>Archivo de origen</translation>
    </message>
    <message>
        <source>The main source file, whose records the dictionary describes.</source>
        <translation>El archivo de origen principal, cuyos registros describe el diccionario.</translation>
    </message>
    <message>
        <source>&amp;Database name:</source>
        <translation>Nombre de la base de &amp;datos:</translation>
    </message>
    <message>
        <source>F&amp;older:</source>
        <translation>&amp;Carpeta:</translation>
    </message>
    <message>
        <source>&amp;Source file:</source>
        <translation>Archivo de &amp;origen:</translation>
    </message>
    <message>
        <source>Give the database a name to go on.</source>
        <translation>Para continuar, asigne un nombre a la base de datos.</translation>
    </message>
    <message>
        <source>The run names what the dictionary does not have; it is kept when the run is saved:</source>
        <translation>El proceso nombra elementos que el diccionario no contiene; se conservan al guardar el proceso:</translation>
    </message>
    <message>
        <source>Saving loses or changes these values of the file:</source>
        <translation>Al guardar se pierden o cambian estos valores del archivo:</translation>
    </message>
</context>
<context>
    <name>tessel::editor::DatasetSourceTab</name>
    <message>
        <source>Dataset fields</source>
        <translation>Campos del conjunto de datos</translation>
    </message>
    <message>
        <source>Opens a dataset; only the description of its fields is read.</source>
        <translation>Abre un conjunto de datos; solo se lee la descripción de sus campos.</translation>
    </message>
    <message>
        <source>Open a dataset to see its fields here.</source>
        <translation>Abra un conjunto de datos para ver aquí sus campos.</translation>
    </message>
    <message>
        <source>The dataset has no fields.</source>
        <translation>El conjunto de datos no tiene campos.</translation>
    </message>
    <message>
        <source>%1: 1 field.</source>
        <translation>%1: 1 campo.</translation>
    </message>
    <message numerus="yes">
        <source>%1: %n fields.</source>
        <translation>
            <numerusform>%1: %n campo.</numerusform>
            <numerusform>%1: %n campos.</numerusform>
        </translation>
    </message>
    <message>
        <source>Ra&amp;nges from data</source>
        <translation>E&amp;xtraer rangos</translation>
    </message>
    <message>
        <source>Open a dataset</source>
        <translation>Abrir un conjunto de datos</translation>
    </message>
    <message>
        <source>Datasets (*.sav *.zsav *.por *.dta *.sas7bdat *.xpt);;SPSS (*.sav *.zsav *.por);;Stata (*.dta);;SAS (*.sas7bdat *.xpt);;SAS catalogues of labels (*.sas7bcat);;All files (*)</source>
        <translation>Conjuntos de datos (*.sav *.zsav *.por *.dta *.sas7bdat *.xpt);;SPSS (*.sav *.zsav *.por);;Stata (*.dta);;SAS (*.sas7bdat *.xpt);;Catálogos de etiquetas de SAS (*.sas7bcat);;Todos los archivos (*)</translation>
    </message>
    <message>
        <source>En&amp;coding:</source>
        <translation>&amp;Codificación:</translation>
    </message>
    <message>
        <source> records</source>
        <translation> registros</translation>
    </message>
    <message>
        <source>How many records are looked at for ranges and categories</source>
        <translation>Cuántos registros se examinan para obtener rangos y categorías</translation>
    </message>
    <message>
        <source>How many records are looked at, from the first.</source>
        <translation>Cuántos registros se examinan, a partir del primero.</translation>
    </message>
    <message>
        <source>Find ranges and categories in the records of the dataset</source>
        <translation>Buscar rangos y categorías en los registros del conjunto de datos</translation>
    </message>
    <message>
        <source>Reads the first records: numbers get the range of their values, and fields without categories get those that are found.</source>
        <translation>Lee los primeros registros: los números reciben el rango de sus valores y los campos sin categorías reciben las que se encuentren.</translation>
    </message>
    <message>
        <source>Lists what the file says and the fields do not carry.</source>
        <translation>Muestra lo que indica el archivo y los campos no recogen.</translation>
    </message>
    <message>
        <source>Remarks on the dataset</source>
        <translation>Observaciones sobre el conjunto de datos</translation>
    </message>
    <message>
        <source>%1: holds labels and no fields; open the .sas7bdat file that they belong to first</source>
        <translation>%1: contiene etiquetas y ningún campo; abra primero el archivo .sas7bdat al que pertenecen</translation>
    </message>
    <message>
        <source>Records: %L1.</source>
        <translation>Registros: %L1.</translation>
    </message>
    <message>
        <source>Encoding: %1.</source>
        <translation>Codificación: %1.</translation>
    </message>
    <message>
        <source>Format: %1.</source>
        <translation>Formato: %1.</translation>
    </message>
    <message>
        <source>Labels: %1.</source>
        <translation>Etiquetas: %1.</translation>
    </message>
    <message>
        <source>Records looked at: %L1.</source>
        <translation>Registros examinados: %L1.</translation>
    </message>
    <message>
        <source>Title: %1.</source>
        <translation>Título: %1.</translation>
    </message>
    <message>
        <source>1 re&amp;mark…</source>
        <translation>1 &amp;observación…</translation>
    </message>
    <message numerus="yes">
        <source>%n re&amp;marks…</source>
        <translation>
            <numerusform>%n &amp;observación…</numerusform>
            <numerusform>%n &amp;observaciones…</numerusform>
        </translation>
    </message>
    <message>
        <source>Remarks on the dataset: %1</source>
        <translation>Observaciones sobre el conjunto de datos: %1</translation>
    </message>
    <message>
        <source>Remarks on %1</source>
        <translation>Observaciones sobre %1</translation>
    </message>
    <message>
        <source>%1 in the box &quot;Encoding&quot;</source>
        <translation>%1 en el cuadro &quot;Codificación&quot;</translation>
    </message>
</context>
<context>
    <name>tessel::editor::DeclaredCodesOffer</name>
    <message>
        <source>&amp;Set them</source>
        <translation>&amp;Usarlos</translation>
    </message>
    <message>
        <source>&amp;Leave</source>
        <translation>De&amp;jar así</translation>
    </message>
    <message>
        <source>%1: missing code %2 instead of %3.</source>
        <translation>%1: código de omitido %2 en lugar de %3.</translation>
    </message>
    <message>
        <source>%1: not-applicable code %2 instead of %3.</source>
        <translation>%1: código de no aplica %2 en lugar de %3.</translation>
    </message>
    <message numerus="yes">
        <source>%n of the %1 new variables have missing or not-applicable codes declared in the file.</source>
        <translation>
            <numerusform>%n de las %1 variables nuevas tiene códigos de omitido o de no aplica declarados en el archivo.</numerusform>
            <numerusform>%n de las %1 variables nuevas tienen códigos de omitido o de no aplica declarados en el archivo.</numerusform>
        </translation>
    </message>
    <message>
        <source>set declared codes</source>
        <translation>asignación de códigos declarados</translation>
    </message>
    <message numerus="yes">
        <source>%n variables have the declared codes now.</source>
        <translation>
            <numerusform>%n variable tiene ahora los códigos declarados.</numerusform>
            <numerusform>%n variables tienen ahora los códigos declarados.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tessel::editor::DetailsDialog</name>
    <message>
        <source>Details</source>
        <translation>Detalles</translation>
    </message>
</context>
<context>
    <name>tessel::editor::DictionaryDocument</name>
    <message>
        <source>is a run configuration, not a dictionary; open it with Run, Open run</source>
        <translation>es una configuración de proceso, no un diccionario; ábrala con Proceso, Abrir proceso</translation>
    </message>
</context>
<context>
    <name>tessel::editor::EncodingBox</name>
    <message>
        <source>The encoding of the texts in the file; a choice, or a name and Return, reads it again.</source>
        <translation>La codificación de los textos del archivo; al elegir otra, o al escribir un nombre y presionar Enter, el archivo se vuelve a leer.</translation>
    </message>
    <message>
        <source>Encoding of the dataset</source>
        <translation>Codificación del conjunto de datos</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automático</translation>
    </message>
</context>
<context>
    <name>tessel::editor::EntitiesPage</name>
    <message>
        <source>Entities</source>
        <translation>Entidades</translation>
    </message>
    <message>
        <source>Which entities of the dictionary take part in the run.</source>
        <translation>Qué entidades del diccionario participan en el proceso.</translation>
    </message>
    <message>
        <source>Entities of the run</source>
        <translation>Entidades del proceso</translation>
    </message>
    <message>
        <source>&amp;Tick the entities, with the mouse or the space bar:</source>
        <translation>&amp;Marque las entidades con el mouse o la barra espaciadora:</translation>
    </message>
    <message>
        <source>%1 ticked.</source>
        <translation>Marcadas: %1.</translation>
    </message>
    <message>
        <source>The dictionary has no entities yet; add some before you plan a run.</source>
        <translation>El diccionario aún no tiene entidades; agregue algunas antes de planificar un proceso.</translation>
    </message>
    <message>
        <source>Tick at least one entity to go on.</source>
        <translation>Para continuar, marque al menos una entidad.</translation>
    </message>
</context>
<context>
    <name>tessel::editor::EntityForm</name>
    <message>
        <source>&amp;Label</source>
        <translation>E&amp;tiqueta</translation>
    </message>
    <message>
        <source>&amp;Alias</source>
        <translation>Al&amp;ias</translation>
    </message>
    <message>
        <source>&amp;Code variable</source>
        <translation>Variable de &amp;código</translation>
    </message>
    <message>
        <source>&amp;Weight variable</source>
        <translation>Variable de ponde&amp;rador</translation>
    </message>
    <message>
        <source>&amp;Selectable</source>
        <translation>Se&amp;leccionable</translation>
    </message>
    <message>
        <source>D&amp;ocumentation</source>
        <translation>Docu&amp;mentación</translation>
    </message>
    <message>
        <source>Label var&amp;iable</source>
        <translation>Varia&amp;ble de etiqueta</translation>
    </message>
    <message>
        <source>Virt&amp;ual</source>
        <translation>Virt&amp;ual</translation>
    </message>
</context>
<context>
    <name>tessel::editor::EntityPane</name>
    <message>
        <source>Entities</source>
        <translation>Entidades</translation>
    </message>
    <message>
        <source>rename %1</source>
        <translation>cambio de nombre de %1</translation>
    </message>
    <message>
        <source>Delete entity</source>
        <translation>Eliminar entidad</translation>
    </message>
    <message>
        <source>%1 goes with its variables and all entities below it. Delete?</source>
        <translation>%1 se elimina con sus variables y con todas las entidades que están por debajo. ¿Eliminar?</translation>
    </message>
    <message>
        <source>an entity needs a name</source>
        <translation>una entidad necesita un nombre</translation>
    </message>
    <message>
        <source>a name begins with a letter or _ and goes on with letters, digits and _</source>
        <translation>un nombre comienza con una letra o _ y sigue con letras, dígitos y _</translation>
    </message>
</context>
<context>
    <name>tessel::editor::ExpressionDialog</name>
    <message>
        <source>&amp;Copy to clipboard</source>
        <translation>&amp;Copiar al portapapeles</translation>
    </message>
    <message>
        <source>Expression</source>
        <translation>Expresión</translation>
    </message>
    <message>
        <source>Double-click in the lists, drag from them, or write here.</source>
        <translation>Haga doble clic en las listas, arrastre desde ellas o escriba aquí.</translation>
    </message>
    <message>
        <source>E&amp;xpression:</source>
        <translation>E&amp;xpresión:</translation>
    </message>
    <message>
        <source>The expression is on the clipboard.</source>
        <translation>La expresión está en el portapapeles.</translation>
    </message>
    <message>
        <source>&amp;Show:</source>
        <translation>&amp;Mostrar:</translation>
    </message>
    <message>
        <source>Show entities and variables by</source>
        <translation>Mostrar entidades y variables por</translation>
    </message>
    <message>
        <source>Names</source>
        <translation>Nombres</translation>
    </message>
    <message>
        <source>Labels</source>
        <translation>Etiquetas</translation>
    </message>
    <message>
        <source>Names and labels</source>
        <translation>Nombres y etiquetas</translation>
    </message>
    <message>
        <source>&amp;Entities</source>
        <translation>&amp;Entidades</translation>
    </message>
    <message>
        <source>&amp;Insert entity</source>
        <translation>&amp;Insertar entidad</translation>
    </message>
    <message>
        <source>&amp;Variables</source>
        <translation>&amp;Variables</translation>
    </message>
    <message>
        <source>Insert va&amp;riable</source>
        <translation>In&amp;sertar variable</translation>
    </message>
    <message>
        <source>Ca&amp;tegories</source>
        <translation>Ca&amp;tegorías</translation>
    </message>
    <message>
        <source>Insert cate&amp;gory</source>
        <translation>Insertar cate&amp;goría</translation>
    </message>
    <message>
        <source>Inserts %1 at the cursor.</source>
        <translation>Inserta %1 en la posición del cursor.</translation>
    </message>
    <message>
        <source>Copy to clipboard</source>
        <translation>Copiar al portapapeles</translation>
    </message>
    <message>
        <source>C&amp;lose</source>
        <translation>Ce&amp;rrar</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Ctrl+Shift+C</source>
        <translation>Ctrl+Shift+C</translation>
    </message>
    <message>
        <source>Copies the whole expression (%1).</source>
        <translation>Copia toda la expresión (%1).</translation>
    </message>
    <message>
        <source>The dictionary has no entities yet.</source>
        <translation>El diccionario aún no tiene entidades.</translation>
    </message>
    <message>
        <source>%1 has no variables.</source>
        <translation>%1 no tiene variables.</translation>
    </message>
    <message>
        <source>The variables of an entity are shown here.</source>
        <translation>Aquí se muestran las variables de una entidad.</translation>
    </message>
    <message>
        <source>%1 has no categories.</source>
        <translation>%1 no tiene categorías.</translation>
    </message>
    <message>
        <source>The categories of a variable are shown here.</source>
        <translation>Aquí se muestran las categorías de una variable.</translation>
    </message>
</context>
<context>
    <name>tessel::editor::FileHandling</name>
    <message>
        <source>%1, line %2, column %3: %4</source>
        <translation>%1, línea %2, columna %3: %4</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Open dictionary</source>
        <translation>Abrir diccionario</translation>
    </message>
    <message>
        <source>Dictionaries (*.json);;All files (*)</source>
        <translation>Diccionarios (*.json);;Todos los archivos (*)</translation>
    </message>
    <message>
        <source>%1 opened.</source>
        <translation>Se abrió %1.</translation>
    </message>
    <message>
        <source>a dictionary that has no file yet</source>
        <translation>un diccionario que aún no tiene archivo</translation>
    </message>
    <message>
        <source>Recover unsaved work</source>
        <translation>Recuperar el trabajo no guardado</translation>
    </message>
    <message>
        <source>The editor ended without saving %1. Go on with the unsaved work?</source>
        <translation>El editor se cerró sin guardar %1. ¿Continuar con el trabajo no guardado?</translation>
    </message>
    <message>
        <source>The unsaved work of %1 is back; save it to keep it.</source>
        <translation>Se recuperó el trabajo no guardado de %1; guárdelo para conservarlo.</translation>
    </message>
    <message>
        <source>Unsaved changes</source>
        <translation>Cambios sin guardar</translation>
    </message>
    <message>
        <source>Save the changes to %1 before it is closed?</source>
        <translation>¿Guardar los cambios antes de cerrar %1?</translation>
    </message>
    <message>
        <source>the new dictionary</source>
        <translation>el nuevo diccionario</translation>
    </message>
    <message>
        <source>Save dictionary</source>
        <translation>Guardar diccionario</translation>
    </message>
    <message>
        <source>File changed on disk</source>
        <translation>El archivo cambió en el disco</translation>
    </message>
    <message>
        <source>Another program has changed %1 since it was opened here. Overwrite those changes?</source>
        <translation>Otro programa modificó %1 desde que se abrió aquí. ¿Sobrescribir esos cambios?</translation>
    </message>
    <message>
        <source>%1 is not saved; the file is as it was. %2</source>
        <translation>%1 no se guardó; el archivo sigue como estaba. %2</translation>
    </message>
    <message>
        <source>%1 saved at %2.</source>
        <translation>%1 se guardó a las %2.</translation>
    </message>
    <message>
        <source>Saving loses something</source>
        <translation>Al guardar se pierde algo</translation>
    </message>
    <message numerus="yes">
        <source>The opened file holds %n values that dictionaries do not keep. Save all the same?</source>
        <translation>
            <numerusform>El archivo abierto contiene %n valor que los diccionarios no conservan. ¿Guardar de todos modos?</numerusform>
            <numerusform>El archivo abierto contiene %n valores que los diccionarios no conservan. ¿Guardar de todos modos?</numerusform>
        </translation>
    </message>
    <message>
        <source>Another program has changed %1. Read it again and lose the changes made here?</source>
        <translation>Otro programa modificó %1. ¿Leerlo de nuevo y perder los cambios hechos aquí?</translation>
    </message>
    <message>
        <source>Another program has changed %1. Read it again?</source>
        <translation>Otro programa modificó %1. ¿Leerlo de nuevo?</translation>
    </message>
    <message>
        <source>The unsaved work was put aside as %1.</source>
        <translation>El trabajo no guardado se apartó como %1.</translation>
    </message>
</context>
<context>
    <name>tessel::editor::FormPane</name>
    <message>
        <source>change %1 of %2</source>
        <translation>cambio de «%1» en %2</translation>
    </message>
</context>
<context>
    <name>tessel::editor::LabelPane</name>
    <message>
        <source>Value labels</source>
        <translation>Etiquetas de valor</translation>
    </message>
    <message>
        <source>Search codes and labels</source>
        <translation>Buscar códigos y etiquetas</translation>
    </message>
    <message>
        <source>Choose a variable to see its value labels.</source>
        <translation>Elija una variable para ver sus etiquetas de valor.</translation>
    </message>
    <message>
        <source>No value labels yet. Press Ins, or paste codes and labels from a spreadsheet.</source>
        <translation>Aún no hay etiquetas de valor. Presione Ins o pegue códigos y etiquetas de una hoja de cálculo.</translation>
    </message>
    <message>
        <source>change %1 of label %2</source>
        <translation>cambio de «%1» en la etiqueta %2</translation>
    </message>
    <message numerus="yes">
        <source>%n labels pasted.</source>
        <translation>
            <numerusform>Se pegó %n etiqueta.</numerusform>
            <numerusform>Se pegaron %n etiquetas.</numerusform>
        </translation>
    </message>
    <message>
        <source>The clipboard holds no lines of codes and labels.</source>
        <translation>El portapapeles no contiene líneas de códigos y etiquetas.</translation>
    </message>
    <message numerus="yes">
        <source>%n labels copied.</source>
        <translation>
            <numerusform>Se copió %n etiqueta.</numerusform>
            <numerusform>Se copiaron %n etiquetas.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tessel::editor::LookupList</name>
    <message>
        <source>expected a list of lookups, [{&quot;id&quot;: &quot;...&quot;, &quot;label&quot;: &quot;...&quot;}, ...], or an object with such a list under &quot;lookups&quot;</source>
        <translation>se esperaba una lista de tablas de referencia, [{&quot;id&quot;: &quot;...&quot;, &quot;label&quot;: &quot;...&quot;}, ...], o un objeto con esa lista en &quot;lookups&quot;</translation>
    </message>
    <message>
        <source>lookup %1 is not as expected; expected an object with the texts &quot;id&quot;, which must not be empty, and &quot;label&quot;</source>
        <translation>la tabla de referencia %1 no es como se esperaba; se esperaba un objeto con los textos &quot;id&quot;, que no debe estar vacío, y &quot;label&quot;</translation>
    </message>
    <message>
        <source>expected text in UTF-8, found UTF-16; save the file in UTF-8</source>
        <translation>se esperaba texto en UTF-8 y se encontró UTF-16; guarde el archivo en UTF-8</translation>
    </message>
</context>
<context>
    <name>tessel::editor::LookupSourceTab</name>
    <message>
        <source>Lookups</source>
        <translation>Tablas de referencia</translation>
    </message>
    <message>
        <source>Opens a list of lookups in JSON.</source>
        <translation>Abre una lista de tablas de referencia en JSON.</translation>
    </message>
    <message>
        <source>Open a list of lookups to see them here.</source>
        <translation>Abra una lista de tablas de referencia para verlas aquí.</translation>
    </message>
    <message>
        <source>The list of lookups is empty.</source>
        <translation>La lista de tablas de referencia está vacía.</translation>
    </message>
    <message>
        <source>Open a list of lookups</source>
        <translation>Abrir una lista de tablas de referencia</translation>
    </message>
    <message>
        <source>Lists of lookups (*.json);;All files (*)</source>
        <translation>Listas de tablas de referencia (*.json);;Todos los archivos (*)</translation>
    </message>
    <message>
        <source>%1: 1 lookup.</source>
        <translation>%1: 1 tabla de referencia.</translation>
    </message>
    <message numerus="yes">
        <source>%1: %n lookups.</source>
        <translation>
            <numerusform>%1: %n tabla de referencia.</numerusform>
            <numerusform>%1: %n tablas de referencia.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tessel::editor::MainWindow</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Archivo</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Herramientas</translation>
    </message>
    <message>
        <source>&amp;New</source>
        <translation>&amp;Nuevo</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>&amp;Abrir…</translation>
    </message>
    <message>
        <source>Open &amp;recent</source>
        <translation>Abrir &amp;reciente</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Guardar</translation>
    </message>
    <message>
        <source>Save &amp;as…</source>
        <translation>Guardar c&amp;omo…</translation>
    </message>
    <message>
        <source>Ctrl+Shift+S</source>
        <translation>Ctrl+Shift+S</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Cerrar</translation>
    </message>
    <message>
        <source>Ctrl+W</source>
        <translation>Ctrl+W</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Salir</translation>
    </message>
    <message>
        <source>Ctrl+Q</source>
        <translation>Ctrl+Q</translation>
    </message>
    <message>
        <source>No files yet</source>
        <translation>Aún no hay archivos</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Edición</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Deshacer</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Rehacer</translation>
    </message>
    <message>
        <source>Ctrl+Shift+Z</source>
        <translation>Ctrl+Shift+Z</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>&amp;Agregar</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Eliminar</translation>
    </message>
    <message>
        <source>Move u&amp;p</source>
        <translation>&amp;Subir</translation>
    </message>
    <message>
        <source>Move do&amp;wn</source>
        <translation>&amp;Bajar</translation>
    </message>
    <message>
        <source>&amp;Copy labels</source>
        <translation>&amp;Copiar etiquetas</translation>
    </message>
    <message>
        <source>Ctrl+Shift+C</source>
        <translation>Ctrl+Shift+C</translation>
    </message>
    <message>
        <source>Pa&amp;ste labels</source>
        <translation>&amp;Pegar etiquetas</translation>
    </message>
    <message>
        <source>Ctrl+Shift+V</source>
        <translation>Ctrl+Shift+V</translation>
    </message>
    <message>
        <source>&amp;Find</source>
        <translation>B&amp;uscar</translation>
    </message>
    <message>
        <source>C&amp;lear search</source>
        <translation>&amp;Limpiar búsqueda</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ver</translation>
    </message>
    <message>
        <source>&amp;Entities</source>
        <translation>&amp;Entidades</translation>
    </message>
    <message>
        <source>&amp;Variables</source>
        <translation>&amp;Variables</translation>
    </message>
    <message>
        <source>&amp;Labels, ranges, properties</source>
        <translation>E&amp;tiquetas, rangos, propiedades</translation>
    </message>
    <message>
        <source>&amp;Sources</source>
        <translation>&amp;Fuentes</translation>
    </message>
    <message>
        <source>&amp;Problems</source>
        <translation>&amp;Problemas</translation>
    </message>
    <message>
        <source>&amp;Docks</source>
        <translation>Pane&amp;les</translation>
    </message>
    <message>
        <source>&amp;Order of the dictionary</source>
        <translation>&amp;Orden del diccionario</translation>
    </message>
    <message>
        <source>Ctrl+Shift+O</source>
        <translation>Ctrl+Shift+O</translation>
    </message>
    <message>
        <source>Lan&amp;guage</source>
        <translation>&amp;Idioma</translation>
    </message>
    <message>
        <source>As the system</source>
        <translation>Como el sistema</translation>
    </message>
    <message>
        <source>The language changes when the editor starts the next time.</source>
        <translation>El idioma cambiará la próxima vez que se inicie el editor.</translation>
    </message>
    <message>
        <source>&amp;Dictionary</source>
        <translation>&amp;Diccionario</translation>
    </message>
    <message>
        <source>Add &amp;entity</source>
        <translation>Agregar &amp;entidad</translation>
    </message>
    <message>
        <source>Ctrl+Shift+E</source>
        <translation>Ctrl+Shift+E</translation>
    </message>
    <message>
        <source>Add &amp;variable</source>
        <translation>Agregar &amp;variable</translation>
    </message>
    <message>
        <source>Ctrl+Shift+A</source>
        <translation>Ctrl+Shift+A</translation>
    </message>
    <message>
        <source>Add &amp;label</source>
        <translation>Agregar e&amp;tiqueta</translation>
    </message>
    <message>
        <source>Ctrl+Shift+L</source>
        <translation>Ctrl+Shift+L</translation>
    </message>
    <message>
        <source>Add &amp;range</source>
        <translation>Agregar &amp;rango</translation>
    </message>
    <message>
        <source>Ctrl+Shift+R</source>
        <translation>Ctrl+Shift+R</translation>
    </message>
    <message>
        <source>Copy labels to &amp;other variables…</source>
        <translation>Copiar etiquetas a &amp;otras variables…</translation>
    </message>
    <message>
        <source>E&amp;xpression…</source>
        <translation>E&amp;xpresión…</translation>
    </message>
    <message>
        <source>Ctrl+E</source>
        <translation>Ctrl+E</translation>
    </message>
    <message>
        <source>&amp;Check now</source>
        <translation>&amp;Comprobar ahora</translation>
    </message>
    <message>
        <source>&amp;Next problem</source>
        <translation>Problema &amp;siguiente</translation>
    </message>
    <message>
        <source>&amp;Previous problem</source>
        <translation>Problema &amp;anterior</translation>
    </message>
    <message>
        <source>Choose the variable whose labels are to be copied first.</source>
        <translation>Elija primero la variable cuyas etiquetas se van a copiar.</translation>
    </message>
    <message>
        <source>&amp;Run</source>
        <translation>&amp;Proceso</translation>
    </message>
    <message>
        <source>&amp;New run…</source>
        <translation>&amp;Nuevo proceso…</translation>
    </message>
    <message>
        <source>Ctrl+R</source>
        <translation>Ctrl+R</translation>
    </message>
    <message>
        <source>&amp;Open run…</source>
        <translation>&amp;Abrir proceso…</translation>
    </message>
    <message>
        <source>Open run</source>
        <translation>Abrir proceso</translation>
    </message>
    <message>
        <source>Run configurations (*.json);;All files (*)</source>
        <translation>Configuraciones de proceso (*.json);;Todos los archivos (*)</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>A&amp;yuda</translation>
    </message>
    <message>
        <source>&amp;Keys</source>
        <translation>A&amp;tajos de teclado</translation>
    </message>
    <message>
        <source>&amp;About Tessel</source>
        <translation>&amp;Acerca de Tessel</translation>
    </message>
    <message>
        <source>Ran&amp;ges</source>
        <translation>Ran&amp;gos</translation>
    </message>
    <message>
        <source>&amp;Properties</source>
        <translation>Propiedade&amp;s</translation>
    </message>
    <message>
        <source>Entities</source>
        <translation>Entidades</translation>
    </message>
    <message>
        <source>Variable</source>
        <translation>Variable</translation>
    </message>
    <message>
        <source>Sources</source>
        <translation>Fuentes</translation>
    </message>
    <message>
        <source>Problems</source>
        <translation>Problemas</translation>
    </message>
    <message>
        <source>Problems (%1)</source>
        <translation>Problemas (%1)</translation>
    </message>
    <message>
        <source>%1 ▸ variables</source>
        <translation>%1 ▸ variables</translation>
    </message>
    <message>
        <source>%1[*] — Tessel</source>
        <translation>%1[*] — Tessel</translation>
    </message>
    <message>
        <source>New dictionary</source>
        <translation>Diccionario nuevo</translation>
    </message>
    <message numerus="yes">
        <source>%n entities</source>
        <translation>
            <numerusform>%n entidad</numerusform>
            <numerusform>%n entidades</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n variables</source>
        <translation>
            <numerusform>%n variable</numerusform>
            <numerusform>%n variables</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n labels</source>
        <translation>
            <numerusform>%n etiqueta</numerusform>
            <numerusform>%n etiquetas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Saving would lose or change %n values that the file holds.</source>
        <translation>
            <numerusform>Al guardar se perdería o cambiaría %n valor que contiene el archivo.</numerusform>
            <numerusform>Al guardar se perderían o cambiarían %n valores que contiene el archivo.</numerusform>
        </translation>
    </message>
    <message>
        <source>Open the sa&amp;mple census</source>
        <translation>Abrir el censo de e&amp;jemplo</translation>
    </message>
    <message>
        <source>&amp;Variable</source>
        <translation>Varia&amp;ble</translation>
    </message>
    <message numerus="yes">
        <source>%n problems found.</source>
        <translation>
            <numerusform>Se encontró %n problema.</numerusform>
            <numerusform>Se encontraron %n problemas.</numerusform>
        </translation>
    </message>
    <message>
        <source>La&amp;bels</source>
        <translation>Eti&amp;quetas</translation>
    </message>
    <message>
        <source>Entit&amp;y</source>
        <translation>E&amp;ntidad</translation>
    </message>
    <message>
        <source>Labels in the &amp;tree</source>
        <translation>Eti&amp;quetas en el árbol</translation>
    </message>
    <message>
        <source>Ctrl+T</source>
        <translation>Ctrl+T</translation>
    </message>
</context>
<context>
    <name>tessel::editor::NoticeBar</name>
    <message>
        <source>&amp;Details</source>
        <translation>De&amp;talles</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Detalles</translation>
    </message>
    <message>
        <source>Close this notice</source>
        <translation>Cerrar este aviso</translation>
    </message>
</context>
<context>
    <name>tessel::editor::OperatorBar</name>
    <message>
        <source>Equal to</source>
        <translation>Igual a</translation>
    </message>
    <message>
        <source>Different from</source>
        <translation>Distinto de</translation>
    </message>
    <message>
        <source>Less than</source>
        <translation>Menor que</translation>
    </message>
    <message>
        <source>Less than or equal to</source>
        <translation>Menor o igual que</translation>
    </message>
    <message>
        <source>Greater than</source>
        <translation>Mayor que</translation>
    </message>
    <message>
        <source>Greater than or equal to</source>
        <translation>Mayor o igual que</translation>
    </message>
    <message>
        <source>And: both sides hold</source>
        <translation>Y: se cumplen ambos lados</translation>
    </message>
    <message>
        <source>Or: one side holds at least</source>
        <translation>O: se cumple al menos un lado</translation>
    </message>
    <message>
        <source>Not: what follows does not hold</source>
        <translation>No: no se cumple lo que sigue</translation>
    </message>
    <message>
        <source>Opening bracket</source>
        <translation>Paréntesis de apertura</translation>
    </message>
    <message>
        <source>Closing bracket</source>
        <translation>Paréntesis de cierre</translation>
    </message>
</context>
<context>
    <name>tessel::editor::OptionsPage</name>
    <message>
        <source>Create not-applicable and &amp;missing codes inside the ranges</source>
        <translation>Crear los códigos de no aplica y de o&amp;mitido dentro de los rangos</translation>
    </message>
    <message>
        <source>Create no &amp;ranges</source>
        <translation>No crear &amp;rangos</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Opciones</translation>
    </message>
    <message>
        <source>How the database is built, as a whole and entity by entity.</source>
        <translation>Cómo se construye la base de datos, en conjunto y entidad por entidad.</translation>
    </message>
    <message>
        <source>Create not-applicable and missing codes inside the ranges</source>
        <translation>Crear los códigos de no aplica y de omitido dentro de los rangos</translation>
    </message>
    <message>
        <source>Create no ranges</source>
        <translation>No crear rangos</translation>
    </message>
    <message>
        <source>Options of each entity</source>
        <translation>Opciones de cada entidad</translation>
    </message>
    <message>
        <source>Entity</source>
        <translation>Entidad</translation>
    </message>
    <message>
        <source>Record type</source>
        <translation>Tipo de registro</translation>
    </message>
    <message>
        <source>Compound</source>
        <translation>Compuesto</translation>
    </message>
    <message>
        <source>SDC</source>
        <translation>SDC</translation>
    </message>
    <message>
        <source>Check sequence</source>
        <translation>Comprobar secuencia</translation>
    </message>
    <message>
        <source>The record type that tells the entity&apos;s records in the source file.</source>
        <translation>El tipo de registro que distingue los registros de la entidad en el archivo de origen.</translation>
    </message>
    <message>
        <source>Handed on to the program that builds the database, as createCompound.</source>
        <translation>Se transmite como createCompound al programa que construye la base de datos.</translation>
    </message>
    <message>
        <source>Handed on to the program that builds the database, as createSDC.</source>
        <translation>Se transmite como createSDC al programa que construye la base de datos.</translation>
    </message>
    <message>
        <source>The sequence of the entity&apos;s records is checked.</source>
        <translation>Se comprueba la secuencia de los registros de la entidad.</translation>
    </message>
    <message>
        <source>&amp;Options of each entity:</source>
        <translation>&amp;Opciones de cada entidad:</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 de %2</translation>
    </message>
</context>
<context>
    <name>tessel::editor::ProblemsPane</name>
    <message>
        <source>Problems</source>
        <translation>Problemas</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Lugar</translation>
    </message>
    <message>
        <source>Problem</source>
        <translation>Problema</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>Código</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>tessel::editor::RangePane</name>
    <message>
        <source>Ranges</source>
        <translation>Rangos</translation>
    </message>
    <message>
        <source>Search ranges</source>
        <translation>Buscar rangos</translation>
    </message>
    <message>
        <source>Choose a variable to see its valid ranges.</source>
        <translation>Elija una variable para ver sus rangos válidos.</translation>
    </message>
    <message>
        <source>No ranges: every value is valid. Press Ins to add one.</source>
        <translation>Sin rangos: todo valor es válido. Presione Ins para agregar uno.</translation>
    </message>
    <message>
        <source>change %1 of %2</source>
        <translation>cambio de «%1» en %2</translation>
    </message>
</context>
<context>
    <name>tessel::editor::ReadingProgress</name>
    <message>
        <source>Reading the records of %1…</source>
        <translation>Leyendo los registros de %1…</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Cancelar</translation>
    </message>
    <message>
        <source>Reading</source>
        <translation>Lectura</translation>
    </message>
</context>
<context>
    <name>tessel::editor::RecordingDelegate</name>
    <message>
        <source>a whole number from %1 to %2 is expected</source>
        <translation>se espera un número entero de %1 a %2</translation>
    </message>
    <message>
        <source>a number such as 12 or -0.5 is expected</source>
        <translation>se espera un número como 12 o -0.5</translation>
    </message>
    <message>
        <source>the rules of the dictionary do not allow it</source>
        <translation>las reglas del diccionario no lo permiten</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was not taken: %2. Correct it, or press Esc to give it up.</source>
        <translation>No se aceptó «%1»: %2. Corríjalo o presione Esc para descartarlo.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was not taken (%2): %3. It can be copied from here.</source>
        <translation>No se aceptó «%1» (%2): %3. Se puede copiar desde aquí.</translation>
    </message>
</context>
<context>
    <name>tessel::editor::RecoveryBar</name>
    <message>
        <source>Open &amp;it</source>
        <translation>Abr&amp;irlo</translation>
    </message>
    <message>
        <source>La&amp;ter</source>
        <translation>&amp;Más tarde</translation>
    </message>
    <message>
        <source>An earlier session ended without saving a dictionary that has no file yet.</source>
        <translation>Una sesión anterior terminó sin guardar un diccionario que aún no tiene archivo.</translation>
    </message>
</context>
<context>
    <name>tessel::editor::RunPlan</name>
    <message>
        <source>is a dictionary, not a run configuration; open it with File, Open</source>
        <translation>es un diccionario, no una configuración de proceso; ábralo con Archivo, Abrir</translation>
    </message>
</context>
<context>
    <name>tessel::editor::RunWizard</name>
    <message>
        <source>%1: %2.</source>
        <translation>%1: %2.</translation>
    </message>
    <message>
        <source>%1, line %2, column %3: %4.</source>
        <translation>%1, línea %2, columna %3: %4.</translation>
    </message>
    <message>
        <source>Run wizard</source>
        <translation>Asistente de proceso</translation>
    </message>
    <message>
        <source>New run</source>
        <translation>Nuevo proceso</translation>
    </message>
    <message>
        <source>Run %1</source>
        <translation>Proceso %1</translation>
    </message>
    <message>
        <source>The run has changes that are not saved. Throw them away?</source>
        <translation>El proceso tiene cambios sin guardar. ¿Descartarlos?</translation>
    </message>
    <message>
        <source>run.json</source>
        <translation>proceso.json</translation>
    </message>
    <message>
        <source>Save the run</source>
        <translation>Guardar el proceso</translation>
    </message>
    <message>
        <source>Run configurations (*.json);;All files (*)</source>
        <translation>Configuraciones de proceso (*.json);;Todos los archivos (*)</translation>
    </message>
    <message>
        <source>%1: holds the dictionary itself; choose another file.</source>
        <translation>%1: contiene el propio diccionario; elija otro archivo.</translation>
    </message>
</context>
<context>
    <name>tessel::editor::SearchField</name>
    <message>
        <source>Search with a pattern (regular expression)</source>
        <translation>Buscar con un patrón (expresión regular)</translation>
    </message>
    <message>
        <source>Search with a pattern</source>
        <translation>Buscar con un patrón</translation>
    </message>
    <message>
        <source>Rows shown</source>
        <translation>Filas mostradas</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 de %2</translation>
    </message>
</context>
<context>
    <name>tessel::editor::SearchLine</name>
    <message>
        <source>Part of a text, or a regular expression such as ^P0[1-9]; letter case does not count.</source>
        <translation>Parte de un texto o una expresión regular como ^P0[1-9]; no se distinguen mayúsculas y minúsculas.</translation>
    </message>
    <message>
        <source>Part of a text; letter case does not count.</source>
        <translation>Parte de un texto; no se distingue entre mayúsculas y minúsculas.</translation>
    </message>
    <message>
        <source>This is no pattern: %1.</source>
        <translation>Esto no es un patrón: %1.</translation>
    </message>
</context>
<context>
    <name>tessel::editor::SelectionPage</name>
    <message>
        <source>Selection</source>
        <translation>Selección</translation>
    </message>
    <message>
        <source>What has been chosen: a tick stands for all variables of an entity, a half tick for some, an empty box for none.</source>
        <translation>Lo que se ha elegido: una marca indica todas las variables de una entidad; una marca parcial, algunas; una casilla vacía, ninguna.</translation>
    </message>
    <message>
        <source>Variables taken of the entity</source>
        <translation>Variables elegidas de la entidad</translation>
    </message>
    <message>
        <source>&amp;Selection:</source>
        <translation>&amp;Selección:</translation>
    </message>
    <message>
        <source>Go to an entity to see its variables.</source>
        <translation>Vaya a una entidad para ver sus variables.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>tessel::editor::SourceTab</name>
    <message>
        <source>&amp;Add to table</source>
        <translation>Agregar a la tab&amp;la</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>A&amp;brir…</translation>
    </message>
    <message>
        <source>Makes variables of the selected rows; Return, a double click and dragging do so too.</source>
        <translation>Crea variables con las filas seleccionadas; también lo hacen Enter, el doble clic y el arrastre.</translation>
    </message>
    <message>
        <source>Open a file for: %1</source>
        <translation>Abrir un archivo para: %1</translation>
    </message>
    <message>
        <source>Filter of: %1</source>
        <translation>Filtro de: %1</translation>
    </message>
    <message>
        <source>Add the selected rows to the table of variables</source>
        <translation>Agregar las filas seleccionadas a la tabla de variables</translation>
    </message>
    <message>
        <source>%L1 of %L2</source>
        <translation>%L1 de %L2</translation>
    </message>
    <message>
        <source>No row matches the filter.</source>
        <translation>Ninguna fila coincide con el filtro.</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtrar</translation>
    </message>
</context>
<context>
    <name>tessel::editor::SourcesPane</name>
    <message>
        <source>Sources of variables</source>
        <translation>Fuentes de variables</translation>
    </message>
    <message>
        <source>Kind of source</source>
        <translation>Tipo de fuente</translation>
    </message>
    <message>
        <source>CSV</source>
        <translation>CSV</translation>
    </message>
    <message>
        <source>Dataset</source>
        <translation>Conjunto de datos</translation>
    </message>
    <message>
        <source>Lookups</source>
        <translation>Tablas de referencia</translation>
    </message>
</context>
<context>
    <name>tessel::editor::StartPage</name>
    <message>
        <source>Describe a census or a survey</source>
        <translation>Describir un censo o una encuesta</translation>
    </message>
    <message>
        <source>A dictionary holds the entities, their variables and value labels.</source>
        <translation>Un diccionario contiene las entidades, sus variables y etiquetas de valor.</translation>
    </message>
    <message>
        <source>&amp;New dictionary</source>
        <translation>&amp;Nuevo diccionario</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>A&amp;brir…</translation>
    </message>
    <message>
        <source>Look at the &amp;sample census</source>
        <translation>Ver el censo de e&amp;jemplo</translation>
    </message>
    <message>
        <source>Recent files</source>
        <translation>Archivos recientes</translation>
    </message>
    <message>
        <source>%1  —  %2</source>
        <translation>%1  —  %2</translation>
    </message>
    <message>
        <source>Re&amp;cent files</source>
        <translation>Archivos &amp;recientes</translation>
    </message>
</context>
<context>
    <name>tessel::editor::Structure</name>
    <message>
        <source>add %1</source>
        <translation>adición de %1</translation>
    </message>
    <message>
        <source>delete %1</source>
        <translation>eliminación de %1</translation>
    </message>
    <message>
        <source>move %1</source>
        <translation>traslado de %1</translation>
    </message>
    <message numerus="yes">
        <source>delete %n variables</source>
        <translation>
            <numerusform>eliminación de %n variable</numerusform>
            <numerusform>eliminación de %n variables</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>move %n variables</source>
        <translation>
            <numerusform>traslado de %n variable</numerusform>
            <numerusform>traslado de %n variables</numerusform>
        </translation>
    </message>
    <message>
        <source>add label %1 to %2</source>
        <translation>adición de la etiqueta %1 a %2</translation>
    </message>
    <message>
        <source>delete labels of %1</source>
        <translation>eliminación de etiquetas de %1</translation>
    </message>
    <message>
        <source>move labels of %1</source>
        <translation>traslado de etiquetas de %1</translation>
    </message>
    <message numerus="yes">
        <source>paste %n labels</source>
        <translation>
            <numerusform>pegado de %n etiqueta</numerusform>
            <numerusform>pegado de %n etiquetas</numerusform>
        </translation>
    </message>
    <message>
        <source>copy labels of %1</source>
        <translation>copia de etiquetas de %1</translation>
    </message>
    <message>
        <source>add range to %1</source>
        <translation>adición de un rango a %1</translation>
    </message>
    <message>
        <source>delete ranges of %1</source>
        <translation>eliminación de rangos de %1</translation>
    </message>
    <message>
        <source>move ranges of %1</source>
        <translation>traslado de rangos de %1</translation>
    </message>
</context>
<context>
    <name>tessel::editor::SummaryPage</name>
    <message>
        <source>Kept, though the dictionary does not have them:</source>
        <translation>Se conservan, aunque el diccionario no los contiene:</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Resumen</translation>
    </message>
    <message>
        <source>What Finish writes.</source>
        <translation>Lo que se escribe al finalizar.</translation>
    </message>
    <message>
        <source>Entities of the run</source>
        <translation>Entidades del proceso</translation>
    </message>
    <message>
        <source>Entity</source>
        <translation>Entidad</translation>
    </message>
    <message>
        <source>Variables</source>
        <translation>Variables</translation>
    </message>
    <message>
        <source>Record type</source>
        <translation>Tipo de registro</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Opciones</translation>
    </message>
    <message>
        <source>Names that the dictionary does not have</source>
        <translation>Nombres que el diccionario no contiene</translation>
    </message>
    <message>
        <source>The dictionary has been edited since this window was opened; the run is planned on what it held then.</source>
        <translation>El diccionario se modificó después de abrir esta ventana; el proceso se planifica con lo que contenía entonces.</translation>
    </message>
    <message>
        <source>Compound</source>
        <translation>Compuesto</translation>
    </message>
    <message>
        <source>SDC</source>
        <translation>SDC</translation>
    </message>
    <message>
        <source>Check sequence</source>
        <translation>Comprobar secuencia</translation>
    </message>
    <message>
        <source>not in the dictionary</source>
        <translation>no está en el diccionario</translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>The run &quot;%1&quot; takes %2 and %3.</source>
        <translation>El proceso «%1» incluye %2 y %3.</translation>
    </message>
    <message>
        <source>The run is written to a file that you are asked for.</source>
        <translation>El proceso se escribe en un archivo que se le pedirá.</translation>
    </message>
    <message>
        <source>The run is written to %1.</source>
        <translation>El proceso se escribe en %1.</translation>
    </message>
</context>
<context>
    <name>tessel::editor::TablePane</name>
    <message>
        <source>The table is sorted; choose View, Order of the dictionary to move rows.</source>
        <translation>La tabla está ordenada; para mover filas, elija Ver, Orden del diccionario.</translation>
    </message>
</context>
<context>
    <name>tessel::editor::TableView</name>
    <message>
        <source>Nothing matches the search. Esc clears it.</source>
        <translation>Nada coincide con la búsqueda. Esc la borra.</translation>
    </message>
</context>
<context>
    <name>tessel::editor::VariableForm</name>
    <message>
        <source>&amp;Type</source>
        <translation>&amp;Tipo</translation>
    </message>
    <message>
        <source>Si&amp;ze</source>
        <translation>Tama&amp;ño</translation>
    </message>
    <message>
        <source>&amp;Missing</source>
        <translation>&amp;Omitido</translation>
    </message>
    <message>
        <source>&amp;Start</source>
        <translation>Comien&amp;zo</translation>
    </message>
    <message>
        <source>&amp;Length</source>
        <translation>&amp;Longitud</translation>
    </message>
    <message>
        <source>De&amp;cimals</source>
        <translation>Deci&amp;males</translation>
    </message>
    <message>
        <source>Not &amp;applicable</source>
        <translation>No apl&amp;ica</translation>
    </message>
    <message>
        <source>Rec&amp;ord</source>
        <translation>&amp;Registro</translation>
    </message>
    <message>
        <source>F&amp;ield</source>
        <translation>&amp;Campo</translation>
    </message>
    <message>
        <source>Doc&amp;umentation</source>
        <translation>Doc&amp;umentación</translation>
    </message>
</context>
<context>
    <name>tessel::editor::VariablePane</name>
    <message>
        <source>Variables</source>
        <translation>Variables</translation>
    </message>
    <message>
        <source>Search variables</source>
        <translation>Buscar variables</translation>
    </message>
    <message>
        <source>Choose an entity to see its variables.</source>
        <translation>Elija una entidad para ver sus variables.</translation>
    </message>
    <message>
        <source>No variables yet. Drag fields from Sources, or press Ins.</source>
        <translation>Aún no hay variables. Arrastre campos desde Fuentes o presione Ins.</translation>
    </message>
    <message>
        <source>change %1 of %2</source>
        <translation>cambio de «%1» en %2</translation>
    </message>
    <message>
        <source>Delete variables</source>
        <translation>Eliminar variables</translation>
    </message>
    <message numerus="yes">
        <source>%n of the variables have value labels or ranges, which go with them. Delete?</source>
        <translation>
            <numerusform>%n de las variables tiene etiquetas de valor o rangos, que se eliminan con ella. ¿Eliminar?</numerusform>
            <numerusform>%n de las variables tienen etiquetas de valor o rangos, que se eliminan con ellas. ¿Eliminar?</numerusform>
        </translation>
    </message>
    <message>
        <source>Choose the entity that is to have the fields first.</source>
        <translation>Elija primero la entidad que recibirá los campos.</translation>
    </message>
    <message>
        <source>add fields to %1</source>
        <translation>adición de campos a %1</translation>
    </message>
    <message>
        <source>No field was added.</source>
        <translation>No se agregó ningún campo.</translation>
    </message>
    <message numerus="yes">
        <source>%n variables added to %1.</source>
        <translation>
            <numerusform>Se agregó %n variable a %1.</numerusform>
            <numerusform>Se agregaron %n variables a %1.</numerusform>
        </translation>
    </message>
    <message>
        <source>rename %1</source>
        <translation>cambio de nombre de %1</translation>
    </message>
    <message>
        <source>a tag is a whole number</source>
        <translation>un Tag es un número entero</translation>
    </message>
    <message numerus="yes">
        <source>%n lookups were not added: %1 is not selectable. Mark it as selectable, or choose another entity.</source>
        <translation>
            <numerusform>No se agregó %n tabla de referencia: %1 no es seleccionable. Márquela como seleccionable o elija otra entidad.</numerusform>
            <numerusform>No se agregaron %n tablas de referencia: %1 no es seleccionable. Márquela como seleccionable o elija otra entidad.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tessel::editor::VariablesPage</name>
    <message>
        <source>All &amp;variables of this entity</source>
        <translation>Todas las &amp;variables de esta entidad</translation>
    </message>
    <message>
        <source>&amp;All</source>
        <translation>&amp;Todas</translation>
    </message>
    <message>
        <source>Tick all variables that are shown</source>
        <translation>Marcar todas las variables mostradas</translation>
    </message>
    <message>
        <source>N&amp;one</source>
        <translation>Nin&amp;guna</translation>
    </message>
    <message>
        <source>Untick all variables that are shown</source>
        <translation>Desmarcar todas las variables mostradas</translation>
    </message>
    <message>
        <source>&amp;Invert</source>
        <translation>&amp;Invertir</translation>
    </message>
    <message>
        <source>Turn the ticks that are shown over</source>
        <translation>Invertir las marcas mostradas</translation>
    </message>
    <message>
        <source>Variables</source>
        <translation>Variables</translation>
    </message>
    <message>
        <source>Which variables of each entity are taken. Those that hold its code, label and weight need not be chosen.</source>
        <translation>Qué variables se toman de cada entidad. Las que contienen su código, su etiqueta y su ponderador no hace falta elegirlas.</translation>
    </message>
    <message>
        <source>Ticked entities</source>
        <translation>Entidades marcadas</translation>
    </message>
    <message>
        <source>All variables of this entity</source>
        <translation>Todas las variables de esta entidad</translation>
    </message>
    <message>
        <source>Takes every variable, also those that the dictionary gets later.</source>
        <translation>Toma todas las variables, también las que se agreguen después al diccionario.</translation>
    </message>
    <message>
        <source>Search variables</source>
        <translation>Buscar variables</translation>
    </message>
    <message>
        <source>Variables of the entity</source>
        <translation>Variables de la entidad</translation>
    </message>
    <message>
        <source>&amp;Entity:</source>
        <translation>&amp;Entidad:</translation>
    </message>
    <message>
        <source>&amp;Search:</source>
        <translation>Bu&amp;scar:</translation>
    </message>
    <message>
        <source>%1 (all)</source>
        <translation>%1 (todas)</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>%1, not a valid pattern</source>
        <translation>%1, patrón no válido</translation>
    </message>
    <message>
        <source>Search name, label, alias, group…</source>
        <translation>Buscar nombre, etiqueta, alias, grupo…</translation>
    </message>
</context>
<context>
    <name>tessel::editor::WizardText</name>
    <message>
        <source>1 entity</source>
        <translation>1 entidad</translation>
    </message>
    <message numerus="yes">
        <source>%n entities</source>
        <translation>
            <numerusform>%n entidad</numerusform>
            <numerusform>%n entidades</numerusform>
        </translation>
    </message>
    <message>
        <source>1 variable</source>
        <translation>1 variable</translation>
    </message>
    <message numerus="yes">
        <source>%n variables</source>
        <translation>
            <numerusform>%n variable</numerusform>
            <numerusform>%n variables</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 de %2</translation>
    </message>
</context>
<context>
    <name>tessel::sources</name>
    <message>
        <source>cannot be read: it is a folder; name a file</source>
        <translation>no se puede leer: es una carpeta; indique un archivo</translation>
    </message>
    <message>
        <source>cannot be read: it is no regular file; save its content in a file and name that</source>
        <translation>no se puede leer: no es un archivo normal; guarde su contenido en un archivo e indique ese archivo</translation>
    </message>
    <message>
        <source>cannot be read: %1</source>
        <translation>no se puede leer: %1</translation>
    </message>
    <message>
        <source>is empty; expected a file with data</source>
        <translation>está vacío; se esperaba un archivo con datos</translation>
    </message>
    <message>
        <source>a text file</source>
        <translation>un archivo de texto</translation>
    </message>
    <message>
        <source>an SPSS file</source>
        <translation>un archivo de SPSS</translation>
    </message>
    <message>
        <source>an encrypted SPSS file</source>
        <translation>un archivo de SPSS cifrado</translation>
    </message>
    <message>
        <source>an SPSS portable file</source>
        <translation>un archivo portátil de SPSS</translation>
    </message>
    <message>
        <source>a Stata file</source>
        <translation>un archivo de Stata</translation>
    </message>
    <message>
        <source>a SAS file</source>
        <translation>un archivo de SAS</translation>
    </message>
    <message>
        <source>a SAS catalogue</source>
        <translation>un catálogo de SAS</translation>
    </message>
    <message>
        <source>a SAS transport file</source>
        <translation>un archivo de transporte de SAS</translation>
    </message>
    <message>
        <source>a file of an unknown kind</source>
        <translation>un archivo de tipo desconocido</translation>
    </message>
</context>
<context>
    <name>tessel::sources::CategoriesText</name>
    <message numerus="yes">
        <source>%n empty codes are left out with their labels, because a category needs a code</source>
        <translation>
            <numerusform>se descarta %n código vacío con su etiqueta, porque una categoría necesita un código</numerusform>
            <numerusform>se descartan %n códigos vacíos con sus etiquetas, porque una categoría necesita un código</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n codes are left out, because a category&apos;s code cannot hold a blank: %1</source>
        <translation>
            <numerusform>se descarta %n código, porque el código de una categoría no puede contener espacios: %1</numerusform>
            <numerusform>se descartan %n códigos, porque el código de una categoría no puede contener espacios: %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>tabs and line ends in %n labels became blanks</source>
        <translation>
            <numerusform>los tabuladores y saltos de línea de %n etiqueta se convirtieron en espacios</numerusform>
            <numerusform>los tabuladores y saltos de línea de %n etiquetas se convirtieron en espacios</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tessel::sources::CodeTexts</name>
    <message>
        <source>as the source declares, the missing code is %1 instead of %2 and the not-applicable code is %3 instead of %4</source>
        <translation>según declara la fuente, el código de omitido es %1 en lugar de %2 y el código de no aplica es %3 en lugar de %4</translation>
    </message>
    <message>
        <source>as the source declares, the missing code is %1 instead of %2</source>
        <translation>según declara la fuente, el código de omitido es %1 en lugar de %2</translation>
    </message>
    <message>
        <source>as the source declares, the not-applicable code is %1 instead of %2</source>
        <translation>según declara la fuente, el código de no aplica es %1 en lugar de %2</translation>
    </message>
</context>
<context>
    <name>tessel::sources::Completeness</name>
    <message>
        <source>does not hold the value labels &quot;%1&quot; of the variable %2: it was cut off or saved without them; get the whole file</source>
        <translation>no contiene las etiquetas de valor «%1» de la variable %2: está truncado o se guardó sin ellas; consiga el archivo completo</translation>
    </message>
    <message>
        <source>ends too early: it was cut off; get the whole file</source>
        <translation>termina demasiado pronto: está truncado; consiga el archivo completo</translation>
    </message>
</context>
<context>
    <name>tessel::sources::CsvCells</name>
    <message>
        <source>The file is marked as UTF-8 but holds other bytes; it was read as Windows-1252.</source>
        <translation>El archivo está marcado como UTF-8 pero contiene otros bytes; se leyó como Windows-1252.</translation>
    </message>
    <message>
        <source>1 cell is not in UTF-8 as others are; it was read as Windows-1252.</source>
        <translation>1 celda no está en UTF-8 como las demás; se leyó como Windows-1252.</translation>
    </message>
    <message numerus="yes">
        <source>%n cells are not in UTF-8 as others are; they were read as Windows-1252.</source>
        <translation>
            <numerusform>%n celda no está en UTF-8 como las demás; se leyó como Windows-1252.</numerusform>
            <numerusform>%n celdas no están en UTF-8 como las demás; se leyeron como Windows-1252.</numerusform>
        </translation>
    </message>
    <message>
        <source>1 cell holds what is no text in %1; choose another encoding if it matters.</source>
        <translation>1 celda contiene algo que no es texto en %1; elija otra codificación si es importante.</translation>
    </message>
    <message numerus="yes">
        <source>%n cells hold what is no text in %1; choose another encoding if it matters.</source>
        <translation>
            <numerusform>%n celda contiene algo que no es texto en %1; elija otra codificación si es importante.</numerusform>
            <numerusform>%n celdas contienen algo que no es texto en %1; elija otra codificación si es importante.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tessel::sources::CsvColumn</name>
    <message>
        <source>No value was found; the type STRING is a guess.</source>
        <translation>No se encontró ningún valor; el tipo STRING es una suposición.</translation>
    </message>
    <message>
        <source>Its numbers have a decimal comma; they were read as if it were a point.</source>
        <translation>Sus números tienen coma decimal; se leyeron como si fuera un punto.</translation>
    </message>
    <message>
        <source>1 value holds blanks and is no category: a code cannot hold them.</source>
        <translation>1 valor contiene espacios y no es una categoría: un código no puede contenerlos.</translation>
    </message>
    <message numerus="yes">
        <source>%n values hold blanks and are no categories: a code cannot hold them.</source>
        <translation>
            <numerusform>%n valor contiene espacios y no es una categoría: un código no puede contenerlos.</numerusform>
            <numerusform>%n valores contienen espacios y no son categorías: un código no puede contenerlos.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tessel::sources::CsvColumns</name>
    <message>
        <source>1 record, in line %1, has more or fewer cells than the header has fields.</source>
        <translation>1 registro, en la línea %1, tiene más o menos celdas que campos el encabezado.</translation>
    </message>
    <message numerus="yes">
        <source>%n records have more or fewer cells than the header has fields, the first of them in line %1.</source>
        <translation>
            <numerusform>%n registro tiene más o menos celdas que campos el encabezado; está en la línea %1.</numerusform>
            <numerusform>%n registros tienen más o menos celdas que campos el encabezado; el primero está en la línea %1.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tessel::sources::CsvHeader</name>
    <message numerus="yes">
        <source>%1 and %n more</source>
        <translation>
            <numerusform>%1 y %n más</numerusform>
            <numerusform>%1 y %n más</numerusform>
        </translation>
    </message>
    <message>
        <source>1 field has no name and is called %1.</source>
        <translation>1 campo no tiene nombre y se llama %1.</translation>
    </message>
    <message numerus="yes">
        <source>%n fields have no name and are called %1.</source>
        <translation>
            <numerusform>%n campo no tiene nombre y se llama %1.</numerusform>
            <numerusform>%n campos no tienen nombre y se llaman %1.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n fields have the name %1.</source>
        <translation>
            <numerusform>%n campo lleva el nombre %1.</numerusform>
            <numerusform>%n campos llevan el nombre %1.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n names belong to more than one field: %1.</source>
        <translation>
            <numerusform>%n nombre corresponde a más de un campo: %1.</numerusform>
            <numerusform>%n nombres corresponden a más de un campo: %1.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tessel::sources::CsvReader</name>
    <message>
        <source>ends in the middle of a character; it may have been cut off</source>
        <translation>termina en medio de un carácter; puede estar truncado</translation>
    </message>
    <message>
        <source>is no text file: it holds zero bytes; expected a CSV file in UTF-8, in UTF-16 with a byte-order mark or in Windows-1252</source>
        <translation>no es un archivo de texto: contiene bytes nulos; se esperaba un archivo CSV en UTF-8, en UTF-16 con marca de orden de bytes o en Windows-1252</translation>
    </message>
    <message>
        <source>has no end of its header within %1 MiB; close its quotation marks, or choose another file</source>
        <translation>no tiene el final del encabezado en los primeros %1 MiB; cierre las comillas o elija otro archivo</translation>
    </message>
    <message>
        <source>has more than %1 fields in its first line; expected fewer</source>
        <translation>tiene más de %1 campos en la primera línea; se esperaban menos</translation>
    </message>
    <message>
        <source>has names of fields that are no text in %1; choose another encoding</source>
        <translation>tiene nombres de campos que no son texto en %1; elija otra codificación</translation>
    </message>
    <message>
        <source>The names stand in line %1, below empty lines.</source>
        <translation>Los nombres están en la línea %1, debajo de líneas vacías.</translation>
    </message>
    <message>
        <source>has a quotation mark in field %1 of its header that is never closed; close it in the file, or choose another separator</source>
        <translation>tiene en el campo %1 de su encabezado unas comillas que no se cierran; ciérrelas en el archivo o elija otro separador</translation>
    </message>
    <message>
        <source>is empty; expected the names of fields in its first line</source>
        <translation>está vacío; se esperaban los nombres de los campos en la primera línea</translation>
    </message>
    <message>
        <source>has a record of more than %1 MiB, which begins in line %2; close its quotation marks, or choose another separator</source>
        <translation>tiene un registro de más de %1 MiB, que comienza en la línea %2; cierre las comillas o elija otro separador</translation>
    </message>
    <message>
        <source>The record that begins in line %1 has a quotation mark that is never closed; it was left out.</source>
        <translation>El registro que comienza en la línea %1 tiene unas comillas que no se cierran; se descartó.</translation>
    </message>
    <message>
        <source>The file ends in the middle of a character; it may have been cut off.</source>
        <translation>El archivo termina en medio de un carácter; puede estar truncado.</translation>
    </message>
    <message>
        <source>cannot be taken apart at the separator %1; choose a comma, a semicolon, a tab or a bar</source>
        <translation>no se puede dividir por el separador %1; elija una coma, un punto y coma, un tabulador o una barra vertical</translation>
    </message>
    <message>
        <source>cannot be read in %1, which is no known encoding; choose another</source>
        <translation>no se puede leer en %1, que no es una codificación conocida; elija otra</translation>
    </message>
    <message>
        <source>cannot be read: %1</source>
        <translation>no se puede leer: %1</translation>
    </message>
    <message>
        <source>cannot be read: it is a folder; choose a file</source>
        <translation>no se puede leer: es una carpeta; elija un archivo</translation>
    </message>
</context>
<context>
    <name>tessel::sources::FieldMaker</name>
    <message>
        <source>texts of more than %1 characters were cut there</source>
        <translation>los textos de más de %1 caracteres se cortaron en ese punto</translation>
    </message>
    <message>
        <source>the value labels of the format %1 are not in the catalogue</source>
        <translation>las etiquetas de valor del formato %1 no están en el catálogo</translation>
    </message>
    <message>
        <source>is a date of the format %1 and stays a number</source>
        <translation>es una fecha con el formato %1 y queda como número</translation>
    </message>
    <message>
        <source>is a text of any length, for which no size is declared</source>
        <translation>es un texto de cualquier longitud, para el que no se declara ningún tamaño</translation>
    </message>
    <message numerus="yes">
        <source>%n missing codes are left out with their labels, because a category&apos;s code is a number or a text: %1</source>
        <translation>
            <numerusform>se descarta %n código de omitido con su etiqueta, porque el código de una categoría es un número o un texto: %1</numerusform>
            <numerusform>se descartan %n códigos de omitido con sus etiquetas, porque el código de una categoría es un número o un texto: %1</numerusform>
        </translation>
    </message>
    <message>
        <source>the range from %1 to %2 is left out: a field carries whole numbers from %3 to %4</source>
        <translation>se descarta el rango de %1 a %2: un campo solo admite números enteros de %3 a %4</translation>
    </message>
    <message>
        <source>the value labels &quot;%1&quot; are not in the file</source>
        <translation>las etiquetas de valor &quot;%1&quot; no están en el archivo</translation>
    </message>
</context>
<context>
    <name>tessel::sources::MissingCodes</name>
    <message numerus="yes">
        <source>%n missing codes are left out, because a field carries whole numbers: %1</source>
        <translation>
            <numerusform>se descarta %n código de omitido, porque un campo solo admite números enteros: %1</numerusform>
            <numerusform>se descartan %n códigos de omitido, porque un campo solo admite números enteros: %1</numerusform>
        </translation>
    </message>
    <message>
        <source>the missing code %1 is left out: a field carries whole numbers from %2 to %3</source>
        <translation>se descarta el código de omitido %1: un campo solo admite números enteros de %2 a %3</translation>
    </message>
    <message>
        <source>the missing values up to %1 are left out: a field carries single codes</source>
        <translation>se descartan los valores omitidos hasta %1: un campo solo admite códigos individuales</translation>
    </message>
    <message>
        <source>the missing values from %1 up are left out: a field carries single codes</source>
        <translation>se descartan los valores omitidos a partir de %1: un campo solo admite códigos individuales</translation>
    </message>
    <message>
        <source>the missing values from %1 to %2 are left out: a field carries single codes</source>
        <translation>se descartan los valores omitidos de %1 a %2: un campo solo admite códigos individuales</translation>
    </message>
    <message numerus="yes">
        <source>%n missing codes are left out, because a field carries two: %1</source>
        <translation>
            <numerusform>se descarta %n código de omitido, porque un campo solo admite dos: %1</numerusform>
            <numerusform>se descartan %n códigos de omitido, porque un campo solo admite dos: %1</numerusform>
        </translation>
    </message>
    <message>
        <source>the missing values up to %1 are left out but for whole numbers with labels: a field carries single codes</source>
        <translation>los valores omitidos hasta %1 se descartan, salvo los números enteros con etiqueta: un campo solo admite códigos individuales</translation>
    </message>
    <message>
        <source>the missing values from %1 up are left out but for whole numbers with labels: a field carries single codes</source>
        <translation>los valores omitidos desde %1 se descartan, salvo los números enteros con etiqueta: un campo solo admite códigos individuales</translation>
    </message>
    <message>
        <source>the missing values from %1 to %2 are left out but for whole numbers with labels: a field carries single codes</source>
        <translation>los valores omitidos de %1 a %2 se descartan, salvo los números enteros con etiqueta: un campo solo admite códigos individuales</translation>
    </message>
</context>
<context>
    <name>tessel::sources::SasCatalogue</name>
    <message>
        <source>its catalogue %1 %2</source>
        <translation>su catálogo %1 %2</translation>
    </message>
    <message>
        <source>There are no value labels: the catalogue %1 %2.</source>
        <translation>No hay etiquetas de valor: el catálogo %1 %2.</translation>
    </message>
    <message numerus="yes">
        <source>The value labels of %n formats stand in a catalogue (.sas7bcat) that was not found; name it, or put it beside the file under the same name: %1.</source>
        <translation>
            <numerusform>Las etiquetas de valor de %n formato (%1) están en un catálogo (.sas7bcat) que no se encontró; indíquelo o colóquelo junto al archivo con el mismo nombre.</numerusform>
            <numerusform>Las etiquetas de valor de %n formatos (%1) están en un catálogo (.sas7bcat) que no se encontró; indíquelo o colóquelo junto al archivo con el mismo nombre.</numerusform>
        </translation>
    </message>
    <message>
        <source>is no SAS catalogue by its content</source>
        <translation>no es, por su contenido, un catálogo de SAS</translation>
    </message>
    <message>
        <source>is damaged and cannot be read</source>
        <translation>está dañado y no se puede leer</translation>
    </message>
</context>
<context>
    <name>tessel::sources::SourceReader</name>
    <message>
        <source>is encrypted; save it without a password</source>
        <translation>está cifrado; guárdelo sin contraseña</translation>
    </message>
    <message>
        <source>is a SAS catalogue, which holds value labels and no fields; open the .sas7bdat file that it belongs to</source>
        <translation>es un catálogo de SAS, que contiene etiquetas de valor y ningún campo; abra el archivo .sas7bdat al que pertenece</translation>
    </message>
    <message>
        <source>is of a kind that cannot be read; expected a file whose name ends in .%1</source>
        <translation>es de un tipo que no se puede leer; se esperaba un archivo cuyo nombre termine en .%1</translation>
    </message>
    <message>
        <source>is not %1 by its content, though its name ends in .%2; it is damaged or of another kind</source>
        <translation>no es, por su contenido, %1, aunque su nombre termina en .%2; está dañado o es de otro tipo</translation>
    </message>
    <message>
        <source>is %1 by its content, though its name ends in .%2; rename it to end in .%3</source>
        <translation>es, por su contenido, %1, aunque su nombre termina en .%2; cámbiele el nombre para que termine en .%3</translation>
    </message>
</context>
<context>
    <name>tessel::sources::StatisticalProblem</name>
    <message>
        <source>cannot be read: %1</source>
        <translation>no se puede leer: %1</translation>
    </message>
    <message>
        <source>is of a version of its format that cannot be read; save it in another version</source>
        <translation>es de una versión de su formato que no se puede leer; guárdelo en otra versión</translation>
    </message>
    <message>
        <source>is compressed in a way that cannot be read; save it without compression</source>
        <translation>está comprimido de una forma que no se puede leer; guárdelo sin compresión</translation>
    </message>
    <message>
        <source>ends too early: it was cut off or is damaged; get the whole file</source>
        <translation>termina demasiado pronto: está truncado o dañado; consiga el archivo completo</translation>
    </message>
    <message>
        <source>is damaged: it declares something larger than can be; get the file again</source>
        <translation>está dañado: declara algo más grande de lo posible; consiga de nuevo el archivo</translation>
    </message>
    <message>
        <source>is damaged and cannot be read; get the file again</source>
        <translation>está dañado y no se puede leer; consiga de nuevo el archivo</translation>
    </message>
    <message>
        <source>holds texts that are not in the encoding %1; choose another one</source>
        <translation>contiene textos que no están en la codificación %1; elija otra</translation>
    </message>
    <message>
        <source>holds texts that are not in the encoding that it declares; choose the encoding</source>
        <translation>contiene textos que no están en la codificación que declara; elija la codificación</translation>
    </message>
    <message>
        <source>holds texts that are not in the encoding %1, which it declares; choose another one</source>
        <translation>contiene textos que no están en la codificación %1, que es la que declara; elija otra</translation>
    </message>
    <message>
        <source>declares the encoding %1, which is not known; choose another one</source>
        <translation>declara la codificación %1, que no se conoce; elija otra</translation>
    </message>
    <message>
        <source>cannot be read in the encoding %1, which is not known; choose another one</source>
        <translation>no se puede leer con la codificación %1, que no se conoce; elija otra</translation>
    </message>
</context>
<context>
    <name>tessel::sources::StatisticalReader</name>
    <message>
        <source>holds no variables; expected at least one</source>
        <translation>no contiene variables; se esperaba al menos una</translation>
    </message>
    <message>
        <source>Categories and ranges come from the first %1 records.</source>
        <translation>Las categorías y los rangos provienen de los primeros %1 registros.</translation>
    </message>
    <message>
        <source>Categories and ranges come from the first %1 of %2 records.</source>
        <translation>Las categorías y los rangos provienen de los primeros %1 de %2 registros.</translation>
    </message>
    <message>
        <source>The file holds more than one data set, of which only the first one is read; save each in a file of its own.</source>
        <translation>El archivo contiene más de un conjunto de datos y solo se lee el primero; guarde cada uno en un archivo propio.</translation>
    </message>
    <message>
        <source>The title is not valid UTF-8 and was read as Windows-1252.</source>
        <translation>El título no es UTF-8 válido y se leyó como Windows-1252.</translation>
    </message>
    <message numerus="yes">
        <source>Texts of %n fields are not valid UTF-8 and were read as Windows-1252: %1.</source>
        <translation>
            <numerusform>Los textos de %n campo no son UTF-8 válido y se leyeron como Windows-1252: %1.</numerusform>
            <numerusform>Los textos de %n campos no son UTF-8 válido y se leyeron como Windows-1252: %1.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tessel::sources::VariableMerge</name>
    <message>
        <source>an earlier field, %1, gives %2 a variable %3 too</source>
        <translation>un campo anterior, %1, también da a %2 una variable %3</translation>
    </message>
    <message>
        <source>%1 has the variable %2 already, with the same alias, label and group</source>
        <translation>%1 ya tiene la variable %2, con el mismo alias, la misma etiqueta y el mismo grupo</translation>
    </message>
    <message>
        <source>%1 has a variable %2 already, with another alias, label or group</source>
        <translation>%1 ya tiene una variable %2, con otro alias, otra etiqueta u otro grupo</translation>
    </message>
    <message>
        <source>gives a variable without a name, because it begins with &quot;_&quot; and a digit; name the variable in the dictionary</source>
        <translation>produce una variable sin nombre, porque comienza con &quot;_&quot; y un dígito; dele nombre a la variable en el diccionario</translation>
    </message>
</context>
</TS>
