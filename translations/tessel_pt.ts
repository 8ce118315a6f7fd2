<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt" sourcelanguage="en">
<context>
    <name>DictionaryTreeModel</name>
    <message>
        <source>Entity</source>
        <translation>Entidade</translation>
    </message>
    <message>
        <source>Entity name already exists as a group name</source>
        <translation>O nome da entidade já existe como nome de grupo</translation>
    </message>
    <message>
        <source>Entity name already exists</source>
        <translation>O nome da entidade já existe</translation>
    </message>
    <message>
        <source>Entity name already exists as an alias name</source>
        <translation>O nome da entidade já existe como alias</translation>
    </message>
    <message>
        <source>Invalid string</source>
        <translation>Cadeia inválida</translation>
    </message>
    <message>
        <source>Chain with length greater than 50</source>
        <translation>Cadeia com comprimento maior que 50</translation>
    </message>
</context>
<context>
    <name>EntityModel</name>
    <message>
        <source>Entity</source>
        <translation>Entidade</translation>
    </message>
</context>
<context>
    <name>UtilForms</name>
    <message>
        <source>Error</source>
        <translation>Erro</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Informação</translation>
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
        <translation>Rótulo</translation>
    </message>
</context>
<context>
    <name>VariableDiccionaryModel</name>
    <message>
        <source>Name</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>Alias</source>
        <translation>Alias</translation>
    </message>
    <message>
        <source>Label</source>
        <translation>Rótulo</translation>
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
        <translation>A cadeia de caracteres digitada já existe</translation>
    </message>
    <message>
        <source>The typed character string already exists as the alias of a variable</source>
        <translation>A cadeia de caracteres digitada já existe como alias de uma variável</translation>
    </message>
    <message>
        <source>The value already exists as the name/alias of a variable alias </source>
        <translation>O valor já existe como nome/alias de um alias de variável </translation>
    </message>
    <message>
        <source>The value already exists as the name-entity/name-variable/alias</source>
        <translation>O valor já existe como nome de entidade/nome de variável/alias</translation>
    </message>
    <message>
        <source>Invalid string</source>
        <translation>Cadeia inválida</translation>
    </message>
    <message>
        <source>RefCode Variable</source>
        <translation>Variável RefCode</translation>
    </message>
    <message>
        <source>Variable identified as RefCode.
Keep it as RefCode?</source>
        <translation>Variável identificada como RefCode.
Mantê-la como RefCode?</translation>
    </message>
    <message>
        <source>already exists.</source>
        <translation>já existe.</translation>
    </message>
    <message>
        <source>Overwrite?</source>
        <translation>Sobrescrever?</translation>
    </message>
    <message>
        <source>Overwrite variable</source>
        <translation>Sobrescrever variável</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Aviso</translation>
    </message>
    <message>
        <source>Duplicated names</source>
        <translation>Nomes duplicados</translation>
    </message>
    <message>
        <source>Error creating</source>
        <translation>Erro ao criar</translation>
    </message>
    <message>
        <source>Must be selectable entity.</source>
        <translation>Deve ser uma entidade selecionável.</translation>
    </message>
</context>
<context>
    <name>VariableModel</name>
    <message>
        <source>Name</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>Label</source>
        <translation>Rótulo</translation>
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
        <translation>Nome</translation>
    </message>
    <message>
        <source>Label</source>
        <translation>Rótulo</translation>
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
        <translation>Nome</translation>
    </message>
    <message>
        <source>Label</source>
        <translation>Rótulo</translation>
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
        <translation>Entidade</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Describes censuses and surveys: entities, variables, value labels.</source>
        <translation>Descreve censos e pesquisas: entidades, variáveis, rótulos de valor.</translation>
    </message>
    <message>
        <source>Write debug lines to standard error.</source>
        <translation>Escreve linhas de depuração na saída de erro padrão.</translation>
    </message>
    <message>
        <source>Save what the window shows to &lt;file&gt; and end.</source>
        <translation>Salva o que a janela mostra em &lt;file&gt; e termina.</translation>
    </message>
    <message>
        <source>Go to the place that &lt;pointer&gt; names, as &quot;tessel check&quot; prints it.</source>
        <translation>Vai ao lugar indicado por &lt;pointer&gt;, como &quot;tessel check&quot; o mostra.</translation>
    </message>
    <message>
        <source>End as soon as the window is there, to try an installation.</source>
        <translation>Termina assim que a janela aparece, para testar uma instalação.</translation>
    </message>
    <message>
        <source>The dictionary to open.</source>
        <translation>O dicionário a abrir.</translation>
    </message>
</context>
<context>
    <name>tessel::documents</name>
    <message>
        <source>expected an object at the top, found an array</source>
        <translation>esperava-se um objeto no nível superior, mas há uma matriz</translation>
    </message>
    <message>
        <source>expected an object at the top, found a text</source>
        <translation>esperava-se um objeto no nível superior, mas há um texto</translation>
    </message>
    <message>
        <source>expected an object at the top, found a number</source>
        <translation>esperava-se um objeto no nível superior, mas há um número</translation>
    </message>
    <message>
        <source>expected an object at the top, found %1</source>
        <translation>esperava-se um objeto no nível superior, mas há %1</translation>
    </message>
    <message>
        <source>cannot be read: it is a folder; name a file</source>
        <translation>não pode ser lido: é uma pasta; indique um arquivo</translation>
    </message>
    <message>
        <source>cannot be read: %1</source>
        <translation>não pode ser lido: %1</translation>
    </message>
    <message>
        <source>is larger than 1 GiB; expected a smaller document</source>
        <translation>tem mais de 1 GiB; esperava-se um documento menor</translation>
    </message>
    <message>
        <source>expected text in UTF-8, found UTF-16; save the file in UTF-8</source>
        <translation>esperava-se texto em UTF-8, mas está em UTF-16; salve o arquivo em UTF-8</translation>
    </message>
    <message>
        <source>expected an object at the top, found nothing: the file is empty</source>
        <translation>esperava-se um objeto no nível superior, mas não há nada: o arquivo está vazio</translation>
    </message>
    <message>
        <source>cannot be written: it is a folder; name a file</source>
        <translation>não pode ser gravado: é uma pasta; indique um arquivo</translation>
    </message>
    <message>
        <source>cannot be written: %1</source>
        <translation>não pode ser gravado: %1</translation>
    </message>
    <message>
        <source>cannot be written: %1; nothing was changed</source>
        <translation>não pode ser gravado: %1; nada foi alterado</translation>
    </message>
    <message>
        <source>expected &quot;,&quot; or &quot;}&quot; after a value in an object</source>
        <translation>esperava-se &quot;,&quot; ou &quot;}&quot; depois de um valor em um objeto</translation>
    </message>
    <message>
        <source>expected &quot;:&quot; after a key</source>
        <translation>esperava-se &quot;:&quot; depois de uma chave</translation>
    </message>
    <message>
        <source>expected &quot;]&quot; at the end of an array</source>
        <translation>esperava-se &quot;]&quot; no fim de uma matriz</translation>
    </message>
    <message>
        <source>expected &quot;,&quot; between two values</source>
        <translation>esperava-se &quot;,&quot; entre dois valores</translation>
    </message>
    <message>
        <source>expected a value: an object, an array, a text in double quotes, a number, true, false or null</source>
        <translation>esperava-se um valor: um objeto, uma matriz, um texto entre aspas duplas, um número, true, false ou null</translation>
    </message>
    <message>
        <source>expected the rest of the document after a number</source>
        <translation>esperava-se o restante do documento depois de um número</translation>
    </message>
    <message>
        <source>expected a number that JSON and double precision can hold</source>
        <translation>esperava-se um número que possa ser representado em JSON e em precisão dupla</translation>
    </message>
    <message>
        <source>expected one of \&quot; \\ \/ \b \f \n \r \t \uXXXX after a backslash</source>
        <translation>esperava-se uma das sequências \&quot; \\ \/ \b \f \n \r \t \uXXXX com a barra invertida</translation>
    </message>
    <message>
        <source>expected text in UTF-8; save the file in that encoding</source>
        <translation>esperava-se texto em UTF-8; salve o arquivo nessa codificação</translation>
    </message>
    <message>
        <source>expected a double quote at the end of a text</source>
        <translation>esperavam-se aspas duplas no fim de um texto</translation>
    </message>
    <message>
        <source>expected a key in double quotes</source>
        <translation>esperava-se uma chave entre aspas duplas</translation>
    </message>
    <message>
        <source>objects and arrays stand more than 1024 deep in one another; expected fewer levels</source>
        <translation>há objetos e matrizes aninhados em mais de 1024 níveis; esperavam-se menos níveis</translation>
    </message>
    <message>
        <source>the document is too large; expected fewer values</source>
        <translation>o documento é grande demais; esperavam-se menos valores</translation>
    </message>
    <message>
        <source>expected nothing more after the end of the document</source>
        <translation>não se esperava mais nada depois do fim do documento</translation>
    </message>
    <message>
        <source>expected a JSON document</source>
        <translation>esperava-se um documento JSON</translation>
    </message>
    <message>
        <source>%1, but the file ends here; it may have been cut off</source>
        <translation>%1, mas o arquivo termina aqui; pode ter sido truncado</translation>
    </message>
</context>
<context>
    <name>tessel::documents::Loss</name>
    <message>
        <source>%1 is not written</source>
        <translation>%1 não é gravado</translation>
    </message>
    <message>
        <source>%1 is written as %2</source>
        <translation>%1 é gravado como %2</translation>
    </message>
    <message>
        <source>the key is given more than once and only one of its values is kept</source>
        <translation>a chave aparece mais de uma vez e só um de seus valores é mantido</translation>
    </message>
    <message>
        <source>what stands here is not JSON as other programs read it; it was read as well as could be</source>
        <translation>o que está aqui não é JSON como outros programas o leem; foi lido da melhor forma possível</translation>
    </message>
</context>
<context>
    <name>tessel::documents::NameCheck</name>
    <message>
        <source>the dictionary itself</source>
        <translation>o próprio dicionário</translation>
    </message>
    <message>
        <source>the entity has no name; give it one</source>
        <translation>a entidade não tem nome; dê um nome a ela</translation>
    </message>
    <message>
        <source>an entity&apos;s name is a letter or _ followed by letters, digits and _</source>
        <translation>o nome de uma entidade é uma letra ou _ seguida de letras, dígitos e _</translation>
    </message>
    <message>
        <source>an entity&apos;s name holds no control character, double quote or backslash</source>
        <translation>o nome de uma entidade não contém caracteres de controle, aspas duplas nem barras invertidas</translation>
    </message>
    <message>
        <source>an entity&apos;s name has at most %1 characters; this one has %2</source>
        <translation>o nome de uma entidade tem no máximo %1 caracteres; este tem %2</translation>
    </message>
    <message>
        <source>the name is already that of %1; rename one of them</source>
        <translation>%1 já tem esse nome; renomeie um dos dois</translation>
    </message>
    <message>
        <source>the name is also an alias of an entity; change one of them</source>
        <translation>o nome também é alias de uma entidade; altere um dos dois</translation>
    </message>
    <message>
        <source>the name is also a group of variables; change one of them</source>
        <translation>o nome também é um grupo de variáveis; altere um dos dois</translation>
    </message>
</context>
<context>
    <name>tessel::documents::VariableFindings</name>
    <message>
        <source>a variable&apos;s label holds no control character, double quote or backslash</source>
        <translation>o rótulo de uma variável não contém caracteres de controle, aspas duplas nem barras invertidas</translation>
    </message>
    <message>
        <source>%1 is no type; a variable is a string, integer, real or bool</source>
        <translation>%1 não é um tipo; uma variável é string, integer, real ou bool</translation>
    </message>
    <message>
        <source>%1, which is to hold the entity&apos;s code, is none of its variables; choose one or add it</source>
        <translation>%1, que deve conter o código da entidade, não é uma de suas variáveis; escolha uma ou adicione-a</translation>
    </message>
    <message>
        <source>%1, which is to hold the entity&apos;s label, is none of its variables; choose one or add it</source>
        <translation>%1, que deve conter o rótulo da entidade, não é uma de suas variáveis; escolha uma ou adicione-a</translation>
    </message>
    <message>
        <source>%1, which is to hold the entity&apos;s weight, is none of its variables; choose one or add it</source>
        <translation>%1, que deve conter o peso da entidade, não é uma de suas variáveis; escolha uma ou adicione-a</translation>
    </message>
    <message>
        <source>a variable&apos;s name holds no control character, double quote or backslash</source>
        <translation>o nome de uma variável não contém caracteres de controle, aspas duplas nem barras invertidas</translation>
    </message>
    <message>
        <source>the name is already that of a variable before it; rename one of them</source>
        <translation>uma variável anterior já tem esse nome; renomeie uma das duas</translation>
    </message>
    <message>
        <source>the name is also that of an entity; rename one of them</source>
        <translation>uma entidade também tem esse nome; renomeie uma das duas</translation>
    </message>
    <message>
        <source>the code %1 is no such number as the variable&apos;s type wants and would be saved as 0; change the code or the type</source>
        <translation>o código %1 não é um número como o tipo da variável exige e seria salvo como 0; altere o código ou o tipo</translation>
    </message>
    <message>
        <source>the minimum %1 is above the maximum %2; exchange them</source>
        <translation>o mínimo %1 é maior que o máximo %2; troque-os</translation>
    </message>
    <message>
        <source>the variable has no name; give it one</source>
        <translation>a variável não tem nome; dê um a ela</translation>
    </message>
</context>
<context>
    <name>tessel::editor</name>
    <message>
        <source>About Tessel</source>
        <translation>Sobre o Tessel</translation>
    </message>
    <message>
        <source>Tessel %1

Data dictionaries for hierarchical statistical databases.</source>
        <translation>Tessel %1

Dicionários de dados para bancos de dados estatísticos hierárquicos.</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>Atalhos de teclado</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>Tecla</translation>
    </message>
    <message>
        <source>Does</source>
        <translation>Ação</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menu</translation>
    </message>
    <message>
        <source>Type into the cell</source>
        <translation>Digitar na célula</translation>
    </message>
    <message>
        <source>Tables</source>
        <translation>Tabelas</translation>
    </message>
    <message>
        <source>Return</source>
        <translation>Enter</translation>
    </message>
    <message>
        <source>Keep what was typed and go to the next row</source>
        <translation>Manter o que foi digitado e ir para a próxima linha</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1, line %2, column %3: %4</source>
        <translation>%1, linha %2, coluna %3: %4</translation>
    </message>
</context>
<context>
    <name>tessel::editor::AutoSave</name>
    <message>
        <source>No copy of the unsaved work could be kept in %1: %2.</source>
        <translation>Não foi possível manter uma cópia do trabalho não salvo em %1: %2.</translation>
    </message>
</context>
<context>
    <name>tessel::editor::CopyLabelsDialog</name>
    <message>
        <source>Copy labels</source>
        <translation>Copiar rótulos</translation>
    </message>
    <message numerus="yes">
        <source>&amp;Variables that are to have the %n labels of %1 in place of their own:</source>
        <translation>
            <numerusform>&amp;Variáveis que receberão %n rótulo de %1 no lugar dos seus:</numerusform>
            <numerusform>&amp;Variáveis que receberão os %n rótulos de %1 no lugar dos seus:</numerusform>
        </translation>
    </message>
    <message>
        <source>Variables</source>
        <translation>Variáveis</translation>
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
        <translation>Abre um arquivo CSV; só o cabeçalho é lido.</translation>
    </message>
    <message>
        <source>Open a CSV file to see its fields here.</source>
        <translation>Abra um arquivo CSV para ver aqui seus campos.</translation>
    </message>
    <message>
        <source>Separator of the CSV file</source>
        <translation>Separador do arquivo CSV</translation>
    </message>
    <message>
        <source>What stands between the fields; a choice reads the header again.</source>
        <translation>O que separa os campos; ao escolher outro, o cabeçalho é lido de novo.</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automático</translation>
    </message>
    <message>
        <source>Comma</source>
        <translation>Vírgula</translation>
    </message>
    <message>
        <source>Semicolon</source>
        <translation>Ponto e vírgula</translation>
    </message>
    <message>
        <source>Tab</source>
        <translation>Tabulação</translation>
    </message>
    <message>
        <source>Bar</source>
        <translation>Barra vertical</translation>
    </message>
    <message>
        <source>&amp;Separator:</source>
        <translation>&amp;Separador:</translation>
    </message>
    <message>
        <source>Open a CSV file</source>
        <translation>Abrir um arquivo CSV</translation>
    </message>
    <message>
        <source>CSV files (*.csv *.txt *.tsv);;All files (*)</source>
        <translation>Arquivos CSV (*.csv *.txt *.tsv);;Todos os arquivos (*)</translation>
    </message>
    <message>
        <source>%1: 1 field in %2.</source>
        <translation>%1: 1 campo em %2.</translation>
    </message>
    <message numerus="yes">
        <source>%1: %n fields in %2.</source>
        <translation>
            <numerusform>%1: %n campo em %2.</numerusform>
            <numerusform>%1: %n campos em %2.</numerusform>
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
        <translation>P&amp;rocurar…</translation>
    </message>
    <message>
        <source>Choose the folder of the database</source>
        <translation>Escolher a pasta do banco de dados</translation>
    </message>
    <message>
        <source>Bro&amp;wse…</source>
        <translation>Pro&amp;curar…</translation>
    </message>
    <message>
        <source>Choose the source file</source>
        <translation>Escolher o arquivo de origem</translation>
    </message>
    <message>
        <source>Names that the dictionary does not have</source>
        <translation>Nomes que o dicionário não contém</translation>
    </message>
    <message>
        <source>Values that saving does not keep</source>
        <translation>Valores que não são mantidos ao salvar</translation>
    </message>
    <message>
        <source>Database</source>
        <translation>Banco de dados</translation>
    </message>
    <message>
        <source>Which database is built, where, and from which source file.</source>
        <translation>Qual banco de dados é construído, onde e a partir de qual arquivo de origem.</translation>
    </message>
    <message>
        <source>Database name</source>
        <translation>Nome do banco de dados</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Pasta</translation>
    </message>
    <message>
        <source>The folder in which the database is built.</source>
        <translation>A pasta em que o banco de dados é construído.</translation>
    </message>
    <message>
        <source>Source file</source>
        <translation>Arquivo de origem</translation>
    </message>
    <message>
        <source>The main source file, whose records the dictionary describes.</source>
        <translation>O arquivo de origem principal, cujos registros o dicionário descreve.</translation>
    </message>
    <message>
        <source>&amp;Database name:</source>
        <translation>Nome do banco de &amp;dados:</translation>
    </message>
    <message>
        <source>F&amp;older:</source>
        <translation>P&amp;asta:</translation>
    </message>
    <message>
        <source>&amp;Source file:</source>
        <translation>Arquivo de ori&amp;gem:</translation>
    </message>
    <message>
        <source>Give the database a name to go on.</source>
        <translation>Para continuar, dê um nome ao banco de dados.</translation>
    </message>
    <message>
        <source>The run names what the dictionary does not have; it is kept when the run is saved:</source>
        <translation>O processamento cita itens que o dicionário não contém; eles são mantidos ao salvar o processamento:</translation>
    </message>
    <message>
        <source>Saving loses or changes these values of the file:</source>
        <translation>Ao salvar, estes valores do arquivo são perdidos ou alterados:</translation>
    </message>
</context>
<context>
    <name>tessel::editor::DatasetSourceTab</name>
    <message>
        <source>Dataset fields</source>
        <translation>Campos do conjunto de dados</translation>
    </message>
    <message>
        <source>Opens a dataset; only the description of its fields is read.</source>
        <translation>Abre um conjunto de dados; só a descrição de seus campos é lida.</translation>
    </message>
    <message>
        <source>Open a dataset to see its fields here.</source>
        <translation>Abra um conjunto de dados para ver aqui seus campos.</translation>
    </message>
    <message>
        <source>The dataset has no fields.</source>
        <translation>O conjunto de dados não tem campos.</translation>
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
        <translation>Extrair inter&amp;valos</translation>
    </message>
    <message>
        <source>Open a dataset</source>
        <translation>Abrir um conjunto de dados</translation>
    </message>
    <message>
        <source>Datasets (*.sav *.zsav *.por *.dta *.sas7bdat *.xpt);;SPSS (*.sav *.zsav *.por);;Stata (*.dta);;SAS (*.sas7bdat *.xpt);;SAS catalogues of labels (*.sas7bcat);;All files (*)</source>
        <translation>Conjuntos de dados (*.sav *.zsav *.por *.dta *.sas7bdat *.xpt);;SPSS (*.sav *.zsav *.por);;Stata (*.dta);;SAS (*.sas7bdat *.xpt);;Catálogos de rótulos do SAS (*.sas7bcat);;Todos os arquivos (*)</translation>
    </message>
    <message>
        <source>En&amp;coding:</source>
        <translation>&amp;Codificação:</translation>
    </message>
    <message>
        <source> records</source>
        <translation> registros</translation>
    </message>
    <message>
        <source>How many records are looked at for ranges and categories</source>
        <translation>Quantos registros são examinados para obter intervalos e categorias</translation>
    </message>
    <message>
        <source>How many records are looked at, from the first.</source>
        <translation>Quantos registros são examinados, a partir do primeiro.</translation>
    </message>
    <message>
        <source>Find ranges and categories in the records of the dataset</source>
        <translation>Procurar intervalos e categorias nos registros do conjunto de dados</translation>
    </message>
    <message>
        <source>Reads the first records: numbers get the range of their values, and fields without categories get those that are found.</source>
        <translation>Lê os primeiros registros: os números recebem o intervalo de seus valores e os campos sem categorias recebem as que forem encontradas.</translation>
    </message>
    <message>
        <source>Lists what the file says and the fields do not carry.</source>
        <translation>Lista o que o arquivo informa e os campos não registram.</translation>
    </message>
    <message>
        <source>Remarks on the dataset</source>
        <translation>Observações sobre o conjunto de dados</translation>
    </message>
    <message>
        <source>%1: holds labels and no fields; open the .sas7bdat file that they belong to first</source>
        <translation>%1: contém rótulos e nenhum campo; abra primeiro o arquivo .sas7bdat a que eles pertencem</translation>
    </message>
    <message>
        <source>Records: %L1.</source>
        <translation>Registros: %L1.</translation>
    </message>
    <message>
        <source>Encoding: %1.</source>
        <translation>Codificação: %1.</translation>
    </message>
    <message>
        <source>Format: %1.</source>
        <translation>Formato: %1.</translation>
    </message>
    <message>
        <source>Labels: %1.</source>
        <translation>Rótulos: %1.</translation>
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
        <translation>1 &amp;observação…</translation>
    </message>
    <message numerus="yes">
        <source>%n re&amp;marks…</source>
        <translation>
            <numerusform>%n &amp;observação…</numerusform>
            <numerusform>%n &amp;observações…</numerusform>
        </translation>
    </message>
    <message>
        <source>Remarks on the dataset: %1</source>
        <translation>Observações sobre o conjunto de dados: %1</translation>
    </message>
    <message>
        <source>Remarks on %1</source>
        <translation>Observações sobre %1</translation>
    </message>
    <message>
        <source>%1 in the box &quot;Encoding&quot;</source>
        <translation>%1 na caixa “Codificação”</translation>
    </message>
</context>
<context>
    <name>tessel::editor::DeclaredCodesOffer</name>
    <message>
        <source>&amp;Set them</source>
        <translation>&amp;Usá-los</translation>
    </message>
    <message>
        <source>&amp;Leave</source>
        <translation>Deixar co&amp;mo estão</translation>
    </message>
    <message>
        <source>%1: missing code %2 instead of %3.</source>
        <translation>%1: código de ausente %2 em vez de %3.</translation>
    </message>
    <message>
        <source>%1: not-applicable code %2 instead of %3.</source>
        <translation>%1: código de não se aplica %2 em vez de %3.</translation>
    </message>
    <message numerus="yes">
        <source>%n of the %1 new variables have missing or not-applicable codes declared in the file.</source>
        <translation>
            <numerusform>%n das %1 variáveis novas tem códigos de ausente ou de não se aplica declarados no arquivo.</numerusform>
            <numerusform>%n das %1 variáveis novas têm códigos de ausente ou de não se aplica declarados no arquivo.</numerusform>
        </translation>
    </message>
    <message>
        <source>set declared codes</source>
        <translation>atribuição de códigos declarados</translation>
    </message>
    <message numerus="yes">
        <source>%n variables have the declared codes now.</source>
        <translation>
            <numerusform>%n variável agora tem os códigos declarados.</numerusform>
            <numerusform>%n variáveis agora têm os códigos declarados.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tessel::editor::DetailsDialog</name>
    <message>
        <source>Details</source>
        <translation>Detalhes</translation>
    </message>
</context>
<context>
    <name>tessel::editor::DictionaryDocument</name>
    <message>
        <source>is a run configuration, not a dictionary; open it with Run, Open run</source>
        <translation>é uma configuração de processamento, não um dicionário; abra-a com Processamento, Abrir processamento</translation>
    </message>
</context>
<context>
    <name>tessel::editor::EncodingBox</name>
    <message>
        <source>The encoding of the texts in the file; a choice, or a name and Return, reads it again.</source>
        <translation>A codificação dos textos do arquivo; ao escolher outra, ou digitar um nome e pressionar Enter, o arquivo é lido de novo.</translation>
    </message>
    <message>
        <source>Encoding of the dataset</source>
        <translation>Codificação do conjunto de dados</translation>
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
        <translation>Quais entidades do dicionário participam do processamento.</translation>
    </message>
    <message>
        <source>Entities of the run</source>
        <translation>Entidades do processamento</translation>
    </message>
    <message>
        <source>&amp;Tick the entities, with the mouse or the space bar:</source>
        <translation>&amp;Marque as entidades com o mouse ou a barra de espaço:</translation>
    </message>
    <message>
        <source>%1 ticked.</source>
        <translation>Marcadas: %1.</translation>
    </message>
    <message>
        <source>The dictionary has no entities yet; add some before you plan a run.</source>
        <translation>O dicionário ainda não tem entidades; adicione algumas antes de planejar um processamento.</translation>
    </message>
    <message>
        <source>Tick at least one entity to go on.</source>
        <translation>Para continuar, marque pelo menos uma entidade.</translation>
    </message>
</context>
<context>
    <name>tessel::editor::EntityForm</name>
    <message>
        <source>&amp;Label</source>
        <translation>Rótu&amp;lo</translation>
    </message>
    <message>
        <source>&amp;Alias</source>
        <translation>Alia&amp;s</translation>
    </message>
    <message>
        <source>&amp;Code variable</source>
        <translation>Variável de códi&amp;go</translation>
    </message>
    <message>
        <source>&amp;Weight variable</source>
        <translation>Variável de pes&amp;o</translation>
    </message>
    <message>
        <source>&amp;Selectable</source>
        <translation>Sele&amp;cionável</translation>
    </message>
    <message>
        <source>D&amp;ocumentation</source>
        <translation>Docu&amp;mentação</translation>
    </message>
    <message>
        <source>Label var&amp;iable</source>
        <translation>&amp;Variável de rótulo</translation>
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
        <translation>mudança de nome de %1</translation>
    </message>
    <message>
        <source>Delete entity</source>
        <translation>Excluir entidade</translation>
    </message>
    <message>
        <source>%1 goes with its variables and all entities below it. Delete?</source>
        <translation>%1 será excluída com suas variáveis e todas as entidades abaixo dela. Excluir?</translation>
    </message>
    <message>
        <source>an entity needs a name</source>
        <translation>uma entidade precisa de um nome</translation>
    </message>
    <message>
        <source>a name begins with a letter or _ and goes on with letters, digits and _</source>
        <translation>um nome começa com uma letra ou _ e continua com letras, dígitos e _</translation>
    </message>
</context>
<context>
    <name>tessel::editor::ExpressionDialog</name>
    <message>
        <source>&amp;Copy to clipboard</source>
        <translation>&amp;Copiar para a área de transferência</translation>
    </message>
    <message>
        <source>Expression</source>
        <translation>Expressão</translation>
    </message>
    <message>
        <source>Double-click in the lists, drag from them, or write here.</source>
        <translation>Clique duas vezes nas listas, arraste a partir delas ou escreva aqui.</translation>
    </message>
    <message>
        <source>E&amp;xpression:</source>
        <translation>E&amp;xpressão:</translation>
    </message>
    <message>
        <source>The expression is on the clipboard.</source>
        <translation>A expressão está na área de transferência.</translation>
    </message>
    <message>
        <source>&amp;Show:</source>
        <translation>Exi&amp;bir:</translation>
    </message>
    <message>
        <source>Show entities and variables by</source>
        <translation>Exibir entidades e variáveis por</translation>
    </message>
    <message>
        <source>Names</source>
        <translation>Nomes</translation>
    </message>
    <message>
        <source>Labels</source>
        <translation>Rótulos</translation>
    </message>
    <message>
        <source>Names and labels</source>
        <translation>Nomes e rótulos</translation>
    </message>
    <message>
        <source>&amp;Entities</source>
        <translation>&amp;Entidades</translation>
    </message>
    <message>
        <source>&amp;Insert entity</source>
        <translation>&amp;Inserir entidade</translation>
    </message>
    <message>
        <source>&amp;Variables</source>
        <translation>&amp;Variáveis</translation>
    </message>
    <message>
        <source>Insert va&amp;riable</source>
        <translation>In&amp;serir variável</translation>
    </message>
    <message>
        <source>Ca&amp;tegories</source>
        <translation>Ca&amp;tegorias</translation>
    </message>
    <message>
        <source>Insert cate&amp;gory</source>
        <translation>Inserir cate&amp;goria</translation>
    </message>
    <message>
        <source>Inserts %1 at the cursor.</source>
        <translation>Insere %1 na posição do cursor.</translation>
    </message>
    <message>
        <source>Copy to clipboard</source>
        <translation>Copiar para a área de transferência</translation>
    </message>
    <message>
        <source>C&amp;lose</source>
        <translation>&amp;Fechar</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fechar</translation>
    </message>
    <message>
        <source>Ctrl+Shift+C</source>
        <translation>Ctrl+Shift+C</translation>
    </message>
    <message>
        <source>Copies the whole expression (%1).</source>
        <translation>Copia toda a expressão (%1).</translation>
    </message>
    <message>
        <source>The dictionary has no entities yet.</source>
        <translation>O dicionário ainda não tem entidades.</translation>
    </message>
    <message>
        <source>%1 has no variables.</source>
        <translation>%1 não tem variáveis.</translation>
    </message>
    <message>
        <source>The variables of an entity are shown here.</source>
        <translation>As variáveis de uma entidade são exibidas aqui.</translation>
    </message>
    <message>
        <source>%1 has no categories.</source>
        <translation>%1 não tem categorias.</translation>
    </message>
    <message>
        <source>The categories of a variable are shown here.</source>
        <translation>As categorias de uma variável são exibidas aqui.</translation>
    </message>
</context>
<context>
    <name>tessel::editor::FileHandling</name>
    <message>
        <source>%1, line %2, column %3: %4</source>
        <translation>%1, linha %2, coluna %3: %4</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Open dictionary</source>
        <translation>Abrir dicionário</translation>
    </message>
    <message>
        <source>Dictionaries (*.json);;All files (*)</source>
        <translation>Dicionários (*.json);;Todos os arquivos (*)</translation>
    </message>
    <message>
        <source>%1 opened.</source>
        <translation>%1 foi aberto.</translation>
    </message>
    <message>
        <source>a dictionary that has no file yet</source>
        <translation>um dicionário que ainda não tem arquivo</translation>
    </message>
    <message>
        <source>Recover unsaved work</source>
        <translation>Recuperar trabalho não salvo</translation>
    </message>
    <message>
        <source>The editor ended without saving %1. Go on with the unsaved work?</source>
        <translation>O editor foi encerrado sem salvar %1. Continuar com o trabalho não salvo?</translation>
    </message>
    <message>
        <source>The unsaved work of %1 is back; save it to keep it.</source>
        <translation>O trabalho não salvo de %1 foi recuperado; salve-o para mantê-lo.</translation>
    </message>
    <message>
        <source>Unsaved changes</source>
        <translation>Alterações não salvas</translation>
    </message>
    <message>
        <source>Save the changes to %1 before it is closed?</source>
        <translation>Salvar as alterações antes de fechar %1?</translation>
    </message>
    <message>
        <source>the new dictionary</source>
        <translation>o novo dicionário</translation>
    </message>
    <message>
        <source>Save dictionary</source>
        <translation>Salvar dicionário</translation>
    </message>
    <message>
        <source>File changed on disk</source>
        <translation>Arquivo alterado no disco</translation>
    </message>
    <message>
        <source>Another program has changed %1 since it was opened here. Overwrite those changes?</source>
        <translation>Outro programa alterou %1 desde que foi aberto aqui. Sobrescrever essas alterações?</translation>
    </message>
    <message>
        <source>%1 is not saved; the file is as it was. %2</source>
        <translation>%1 não foi salvo; o arquivo continua como estava. %2</translation>
    </message>
    <message>
        <source>%1 saved at %2.</source>
        <translation>%1 salvo às %2.</translation>
    </message>
    <message>
        <source>Saving loses something</source>
        <translation>Ao salvar, algo se perde</translation>
    </message>
    <message numerus="yes">
        <source>The opened file holds %n values that dictionaries do not keep. Save all the same?</source>
        <translation>
            <numerusform>O arquivo aberto contém %n valor que os dicionários não mantêm. Salvar mesmo assim?</numerusform>
            <numerusform>O arquivo aberto contém %n valores que os dicionários não mantêm. Salvar mesmo assim?</numerusform>
        </translation>
    </message>
    <message>
        <source>Another program has changed %1. Read it again and lose the changes made here?</source>
        <translation>Outro programa alterou %1. Ler de novo e perder as alterações feitas aqui?</translation>
    </message>
    <message>
        <source>Another program has changed %1. Read it again?</source>
        <translation>Outro programa alterou %1. Ler de novo?</translation>
    </message>
    <message>
        <source>The unsaved work was put aside as %1.</source>
        <translation>O trabalho não salvo foi separado como %1.</translation>
    </message>
</context>
<context>
    <name>tessel::editor::FormPane</name>
    <message>
        <source>change %1 of %2</source>
        <translation>alteração de “%1” em %2</translation>
    </message>
</context>
<context>
    <name>tessel::editor::LabelPane</name>
    <message>
        <source>Value labels</source>
        <translation>Rótulos de valor</translation>
    </message>
    <message>
        <source>Search codes and labels</source>
        <translation>Pesquisar códigos e rótulos</translation>
    </message>
    <message>
        <source>Choose a variable to see its value labels.</source>
        <translation>Escolha uma variável para ver seus rótulos de valor.</translation>
    </message>
    <message>
        <source>No value labels yet. Press Ins, or paste codes and labels from a spreadsheet.</source>
        <translation>Ainda não há rótulos de valor. Pressione Ins ou cole códigos e rótulos de uma planilha.</translation>
    </message>
    <message>
        <source>change %1 of label %2</source>
        <translation>alteração de “%1” no rótulo %2</translation>
    </message>
    <message numerus="yes">
        <source>%n labels pasted.</source>
        <translation>
            <numerusform>%n rótulo colado.</numerusform>
            <numerusform>%n rótulos colados.</numerusform>
        </translation>
    </message>
    <message>
        <source>The clipboard holds no lines of codes and labels.</source>
        <translation>A área de transferência não contém linhas de códigos e rótulos.</translation>
    </message>
    <message numerus="yes">
        <source>%n labels copied.</source>
        <translation>
            <numerusform>%n rótulo copiado.</numerusform>
            <numerusform>%n rótulos copiados.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tessel::editor::LookupList</name>
    <message>
        <source>expected a list of lookups, [{&quot;id&quot;: &quot;...&quot;, &quot;label&quot;: &quot;...&quot;}, ...], or an object with such a list under &quot;lookups&quot;</source>
        <translation>esperava-se uma lista de tabelas de referência, [{&quot;id&quot;: &quot;...&quot;, &quot;label&quot;: &quot;...&quot;}, ...], ou um objeto com essa lista em &quot;lookups&quot;</translation>
    </message>
    <message>
        <source>lookup %1 is not as expected; expected an object with the texts &quot;id&quot;, which must not be empty, and &quot;label&quot;</source>
        <translation>a tabela de referência %1 não é como se esperava; esperava-se um objeto com os textos &quot;id&quot;, que não deve estar vazio, e &quot;label&quot;</translation>
    </message>
    <message>
        <source>expected text in UTF-8, found UTF-16; save the file in UTF-8</source>
        <translation>esperava-se texto em UTF-8, mas está em UTF-16; salve o arquivo em UTF-8</translation>
    </message>
</context>
<context>
    <name>tessel::editor::LookupSourceTab</name>
    <message>
        <source>Lookups</source>
        <translation>Tabelas de referência</translation>
    </message>
    <message>
        <source>Opens a list of lookups in JSON.</source>
        <translation>Abre uma lista de tabelas de referência em JSON.</translation>
    </message>
    <message>
        <source>Open a list of lookups to see them here.</source>
        <translation>Abra uma lista de tabelas de referência para vê-las aqui.</translation>
    </message>
    <message>
        <source>The list of lookups is empty.</source>
        <translation>A lista de tabelas de referência está vazia.</translation>
    </message>
    <message>
        <source>Open a list of lookups</source>
        <translation>Abrir uma lista de tabelas de referência</translation>
    </message>
    <message>
        <source>Lists of lookups (*.json);;All files (*)</source>
        <translation>Listas de tabelas de referência (*.json);;Todos os arquivos (*)</translation>
    </message>
    <message>
        <source>%1: 1 lookup.</source>
        <translation>%1: 1 tabela de referência.</translation>
    </message>
    <message numerus="yes">
        <source>%1: %n lookups.</source>
        <translation>
            <numerusform>%1: %n tabela de referência.</numerusform>
            <numerusform>%1: %n tabelas de referência.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tessel::editor::MainWindow</name>
    <message>
        <source>&amp;File</source>
        <translation>Ar&amp;quivo</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Ferramentas</translation>
    </message>
    <message>
        <source>&amp;New</source>
        <translation>&amp;Novo</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>&amp;Abrir…</translation>
    </message>
    <message>
        <source>Open &amp;recent</source>
        <translation>Abrir &amp;recente</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Salvar</translation>
    </message>
    <message>
        <source>Save &amp;as…</source>
        <translation>Salvar &amp;como…</translation>
    </message>
    <message>
        <source>Ctrl+Shift+S</source>
        <translation>Ctrl+Shift+S</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Fechar</translation>
    </message>
    <message>
        <source>Ctrl+W</source>
        <translation>Ctrl+W</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>Sa&amp;ir</translation>
    </message>
    <message>
        <source>Ctrl+Q</source>
        <translation>Ctrl+Q</translation>
    </message>
    <message>
        <source>No files yet</source>
        <translation>Ainda não há arquivos</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Editar</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Desfazer</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Refazer</translation>
    </message>
    <message>
        <source>Ctrl+Shift+Z</source>
        <translation>Ctrl+Shift+Z</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>&amp;Adicionar</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Excluir</translation>
    </message>
    <message>
        <source>Move u&amp;p</source>
        <translation>Mover para &amp;cima</translation>
    </message>
    <message>
        <source>Move do&amp;wn</source>
        <translation>Mover para &amp;baixo</translation>
    </message>
    <message>
        <source>&amp;Copy labels</source>
        <translation>Co&amp;piar rótulos</translation>
    </message>
    <message>
        <source>Ctrl+Shift+C</source>
        <translation>Ctrl+Shift+C</translation>
    </message>
    <message>
        <source>Pa&amp;ste labels</source>
        <translation>C&amp;olar rótulos</translation>
    </message>
    <message>
        <source>Ctrl+Shift+V</source>
        <translation>Ctrl+Shift+V</translation>
    </message>
    <message>
        <source>&amp;Find</source>
        <translation>Pesqui&amp;sar</translation>
    </message>
    <message>
        <source>C&amp;lear search</source>
        <translation>&amp;Limpar pesquisa</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>E&amp;xibir</translation>
    </message>
    <message>
        <source>&amp;Entities</source>
        <translation>&amp;Entidades</translation>
    </message>
    <message>
        <source>&amp;Variables</source>
        <translation>&amp;Variáveis</translation>
    </message>
    <message>
        <source>&amp;Labels, ranges, properties</source>
        <translation>&amp;Rótulos, intervalos, propriedades</translation>
    </message>
    <message>
        <source>&amp;Sources</source>
        <translation>&amp;Fontes</translation>
    </message>
    <message>
        <source>&amp;Problems</source>
        <translation>&amp;Problemas</translation>
    </message>
    <message>
        <source>&amp;Docks</source>
        <translation>Pai&amp;néis</translation>
    </message>
    <message>
        <source>&amp;Order of the dictionary</source>
        <translation>&amp;Ordem do dicionário</translation>
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
        <translation>Como o sistema</translation>
    </message>
    <message>
        <source>The language changes when the editor starts the next time.</source>
        <translation>O idioma mudará na próxima vez que o editor for iniciado.</translation>
    </message>
    <message>
        <source>&amp;Dictionary</source>
        <translation>&amp;Dicionário</translation>
    </message>
    <message>
        <source>Add &amp;entity</source>
        <translation>Adicionar &amp;entidade</translation>
    </message>
    <message>
        <source>Ctrl+Shift+E</source>
        <translation>Ctrl+Shift+E</translation>
    </message>
    <message>
        <source>Add &amp;variable</source>
        <translation>Adicionar &amp;variável</translation>
    </message>
    <message>
        <source>Ctrl+Shift+A</source>
        <translation>Ctrl+Shift+A</translation>
    </message>
    <message>
        <source>Add &amp;label</source>
        <translation>Adicionar &amp;rótulo</translation>
    </message>
    <message>
        <source>Ctrl+Shift+L</source>
        <translation>Ctrl+Shift+L</translation>
    </message>
    <message>
        <source>Add &amp;range</source>
        <translation>Adicionar &amp;intervalo</translation>
    </message>
    <message>
        <source>Ctrl+Shift+R</source>
        <translation>Ctrl+Shift+R</translation>
    </message>
    <message>
        <source>Copy labels to &amp;other variables…</source>
        <translation>Copiar rótulos para &amp;outras variáveis…</translation>
    </message>
    <message>
        <source>E&amp;xpression…</source>
        <translation>E&amp;xpressão…</translation>
    </message>
    <message>
        <source>Ctrl+E</source>
        <translation>Ctrl+E</translation>
    </message>
    <message>
        <source>&amp;Check now</source>
        <translation>Verificar a&amp;gora</translation>
    </message>
    <message>
        <source>&amp;Next problem</source>
        <translation>&amp;Próximo problema</translation>
    </message>
    <message>
        <source>&amp;Previous problem</source>
        <translation>Problema &amp;anterior</translation>
    </message>
    <message>
        <source>Choose the variable whose labels are to be copied first.</source>
        <translation>Escolha primeiro a variável cujos rótulos serão copiados.</translation>
    </message>
    <message>
        <source>&amp;Run</source>
        <translation>&amp;Processamento</translation>
    </message>
    <message>
        <source>&amp;New run…</source>
        <translation>&amp;Novo processamento…</translation>
    </message>
    <message>
        <source>Ctrl+R</source>
        <translation>Ctrl+R</translation>
    </message>
    <message>
        <source>&amp;Open run…</source>
        <translation>&amp;Abrir processamento…</translation>
    </message>
    <message>
        <source>Open run</source>
        <translation>Abrir processamento</translation>
    </message>
    <message>
        <source>Run configurations (*.json);;All files (*)</source>
        <translation>Configurações de processamento (*.json);;Todos os arquivos (*)</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>A&amp;juda</translation>
    </message>
    <message>
        <source>&amp;Keys</source>
        <translation>A&amp;talhos de teclado</translation>
    </message>
    <message>
        <source>&amp;About Tessel</source>
        <translation>&amp;Sobre o Tessel</translation>
    </message>
    <message>
        <source>Ran&amp;ges</source>
        <translation>&amp;Intervalos</translation>
    </message>
    <message>
        <source>&amp;Properties</source>
        <translation>P&amp;ropriedades</translation>
    </message>
    <message>
        <source>Entities</source>
        <translation>Entidades</translation>
    </message>
    <message>
        <source>Variable</source>
        <translation>Variável</translation>
    </message>
    <message>
        <source>Sources</source>
        <translation>Fontes</translation>
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
        <translation>%1 ▸ variáveis</translation>
    </message>
    <message>
        <source>%1[*] — Tessel</source>
        <translation>%1[*] — Tessel</translation>
    </message>
    <message>
        <source>New dictionary</source>
        <translation>Novo dicionário</translation>
    </message>
    <message numerus="yes">
        <source>%n entities</source>
        <translation>
            <numerusform>%n entidade</numerusform>
            <numerusform>%n entidades</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n variables</source>
        <translation>
            <numerusform>%n variável</numerusform>
            <numerusform>%n variáveis</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n labels</source>
        <translation>
            <numerusform>%n rótulo</numerusform>
            <numerusform>%n rótulos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Saving would lose or change %n values that the file holds.</source>
        <translation>
            <numerusform>Ao salvar, %n valor contido no arquivo seria perdido ou alterado.</numerusform>
            <numerusform>Ao salvar, %n valores contidos no arquivo seriam perdidos ou alterados.</numerusform>
        </translation>
    </message>
    <message>
        <source>Open the sa&amp;mple census</source>
        <translation>Abrir o censo de e&amp;xemplo</translation>
    </message>
    <message>
        <source>&amp;Variable</source>
        <translation>Variáve&amp;l</translation>
    </message>
    <message numerus="yes">
        <source>%n problems found.</source>
        <translation>
            <numerusform>%n problema encontrado.</numerusform>
            <numerusform>%n problemas encontrados.</numerusform>
        </translation>
    </message>
    <message>
        <source>La&amp;bels</source>
        <translation>Ró&amp;tulos</translation>
    </message>
    <message>
        <source>Entit&amp;y</source>
        <translation>E&amp;ntidade</translation>
    </message>
    <message>
        <source>Labels in the &amp;tree</source>
        <translation>Ró&amp;tulos na árvore</translation>
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
        <translation>De&amp;talhes</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Detalhes</translation>
    </message>
    <message>
        <source>Close this notice</source>
        <translation>Fechar este aviso</translation>
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
        <translation>Diferente de</translation>
    </message>
    <message>
        <source>Less than</source>
        <translation>Menor que</translation>
    </message>
    <message>
        <source>Less than or equal to</source>
        <translation>Menor ou igual a</translation>
    </message>
    <message>
        <source>Greater than</source>
        <translation>Maior que</translation>
    </message>
    <message>
        <source>Greater than or equal to</source>
        <translation>Maior ou igual a</translation>
    </message>
    <message>
        <source>And: both sides hold</source>
        <translation>E: os dois lados são verdadeiros</translation>
    </message>
    <message>
        <source>Or: one side holds at least</source>
        <translation>Ou: pelo menos um lado é verdadeiro</translation>
    </message>
    <message>
        <source>Not: what follows does not hold</source>
        <translation>Não: o que segue não é verdadeiro</translation>
    </message>
    <message>
        <source>Opening bracket</source>
        <translation>Abre parêntese</translation>
    </message>
    <message>
        <source>Closing bracket</source>
        <translation>Fecha parêntese</translation>
    </message>
</context>
<context>
    <name>tessel::editor::OptionsPage</name>
    <message>
        <source>Create not-applicable and &amp;missing codes inside the ranges</source>
        <translation>Criar os códigos de não se aplica e de a&amp;usente dentro dos intervalos</translation>
    </message>
    <message>
        <source>Create no &amp;ranges</source>
        <translation>Não criar &amp;intervalos</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Opções</translation>
    </message>
    <message>
        <source>How the database is built, as a whole and entity by entity.</source>
        <translation>Como o banco de dados é construído, no conjunto e entidade por entidade.</translation>
    </message>
    <message>
        <source>Create not-applicable and missing codes inside the ranges</source>
        <translation>Criar os códigos de não se aplica e de ausente dentro dos intervalos</translation>
    </message>
    <message>
        <source>Create no ranges</source>
        <translation>Não criar intervalos</translation>
    </message>
    <message>
        <source>Options of each entity</source>
        <translation>Opções de cada entidade</translation>
    </message>
    <message>
        <source>Entity</source>
        <translation>Entidade</translation>
    </message>
    <message>
        <source>Record type</source>
        <translation>Tipo de registro</translation>
    </message>
    <message>
        <source>Compound</source>
        <translation>Composto</translation>
    </message>
    <message>
        <source>SDC</source>
        <translation>SDC</translation>
    </message>
    <message>
        <source>Check sequence</source>
        <translation>Verificar sequência</translation>
    </message>
    <message>
        <source>The record type that tells the entity&apos;s records in the source file.</source>
        <translation>O tipo de registro que distingue os registros da entidade no arquivo de origem.</translation>
    </message>
    <message>
        <source>Handed on to the program that builds the database, as createCompound.</source>
        <translation>Repassado como createCompound ao programa que constrói o banco de dados.</translation>
    </message>
    <message>
        <source>Handed on to the program that builds the database, as createSDC.</source>
        <translation>Repassado como createSDC ao programa que constrói o banco de dados.</translation>
    </message>
    <message>
        <source>The sequence of the entity&apos;s records is checked.</source>
        <translation>A sequência dos registros da entidade é verificada.</translation>
    </message>
    <message>
        <source>&amp;Options of each entity:</source>
        <translation>Opçõ&amp;es de cada entidade:</translation>
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
        <translation>Intervalos</translation>
    </message>
    <message>
        <source>Search ranges</source>
        <translation>Pesquisar intervalos</translation>
    </message>
    <message>
        <source>Choose a variable to see its valid ranges.</source>
        <translation>Escolha uma variável para ver seus intervalos válidos.</translation>
    </message>
    <message>
        <source>No ranges: every value is valid. Press Ins to add one.</source>
        <translation>Sem intervalos: qualquer valor é válido. Pressione Ins para adicionar um.</translation>
    </message>
    <message>
        <source>change %1 of %2</source>
        <translation>alteração de “%1” em %2</translation>
    </message>
</context>
<context>
    <name>tessel::editor::ReadingProgress</name>
    <message>
        <source>Reading the records of %1…</source>
        <translation>Lendo os registros de %1…</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Cancelar</translation>
    </message>
    <message>
        <source>Reading</source>
        <translation>Leitura</translation>
    </message>
</context>
<context>
    <name>tessel::editor::RecordingDelegate</name>
    <message>
        <source>a whole number from %1 to %2 is expected</source>
        <translation>espera-se um número inteiro de %1 a %2</translation>
    </message>
    <message>
        <source>a number such as 12 or -0.5 is expected</source>
        <translation>espera-se um número como 12 ou -0.5</translation>
    </message>
    <message>
        <source>the rules of the dictionary do not allow it</source>
        <translation>as regras do dicionário não o permitem</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was not taken: %2. Correct it, or press Esc to give it up.</source>
        <translation>“%1” não foi aceito: %2. Corrija-o ou pressione Esc para descartá-lo.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was not taken (%2): %3. It can be copied from here.</source>
        <translation>“%1” não foi aceito (%2): %3. O texto pode ser copiado daqui.</translation>
    </message>
</context>
<context>
    <name>tessel::editor::RecoveryBar</name>
    <message>
        <source>Open &amp;it</source>
        <translation>&amp;Abri-lo</translation>
    </message>
    <message>
        <source>La&amp;ter</source>
        <translation>A&amp;gora não</translation>
    </message>
    <message>
        <source>An earlier session ended without saving a dictionary that has no file yet.</source>
        <translation>Uma sessão anterior terminou sem salvar um dicionário que ainda não tem arquivo.</translation>
    </message>
</context>
<context>
    <name>tessel::editor::RunPlan</name>
    <message>
        <source>is a dictionary, not a run configuration; open it with File, Open</source>
        <translation>é um dicionário, não uma configuração de processamento; abra-o com Arquivo, Abrir</translation>
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
        <translation>%1, linha %2, coluna %3: %4.</translation>
    </message>
    <message>
        <source>Run wizard</source>
        <translation>Assistente de processamento</translation>
    </message>
    <message>
        <source>New run</source>
        <translation>Novo processamento</translation>
    </message>
    <message>
        <source>Run %1</source>
        <translation>Processamento %1</translation>
    </message>
    <message>
        <source>The run has changes that are not saved. Throw them away?</source>
        <translation>O processamento tem alterações não salvas. Descartá-las?</translation>
    </message>
    <message>
        <source>run.json</source>
        <translation>processamento.json</translation>
    </message>
    <message>
        <source>Save the run</source>
        <translation>Salvar o processamento</translation>
    </message>
    <message>
        <source>Run configurations (*.json);;All files (*)</source>
        <translation>Configurações de processamento (*.json);;Todos os arquivos (*)</translation>
    </message>
    <message>
        <source>%1: holds the dictionary itself; choose another file.</source>
        <translation>%1: contém o próprio dicionário; escolha outro arquivo.</translation>
    </message>
</context>
<context>
    <name>tessel::editor::SearchField</name>
    <message>
        <source>Search with a pattern (regular expression)</source>
        <translation>Pesquisar com um padrão (expressão regular)</translation>
    </message>
    <message>
        <source>Search with a pattern</source>
        <translation>Pesquisar com um padrão</translation>
    </message>
    <message>
        <source>Rows shown</source>
        <translation>Linhas exibidas</translation>
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
        <translation>Parte de um texto ou uma expressão regular como ^P0[1-9]; não há distinção entre maiúsculas e minúsculas.</translation>
    </message>
    <message>
        <source>Part of a text; letter case does not count.</source>
        <translation>Parte de um texto; não há distinção entre maiúsculas e minúsculas.</translation>
    </message>
    <message>
        <source>This is no pattern: %1.</source>
        <translation>Isto não é um padrão: %1.</translation>
    </message>
</context>
<context>
    <name>tessel::editor::SelectionPage</name>
    <message>
        <source>Selection</source>
        <translation>Seleção</translation>
    </message>
    <message>
        <source>What has been chosen: a tick stands for all variables of an entity, a half tick for some, an empty box for none.</source>
        <translation>O que foi escolhido: uma marca indica todas as variáveis de uma entidade; uma marca parcial, algumas; uma caixa vazia, nenhuma.</translation>
    </message>
    <message>
        <source>Variables taken of the entity</source>
        <translation>Variáveis escolhidas da entidade</translation>
    </message>
    <message>
        <source>&amp;Selection:</source>
        <translation>&amp;Seleção:</translation>
    </message>
    <message>
        <source>Go to an entity to see its variables.</source>
        <translation>Vá até uma entidade para ver suas variáveis.</translation>
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
        <translation>Adicionar à tabe&amp;la</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>A&amp;brir…</translation>
    </message>
    <message>
        <source>Makes variables of the selected rows; Return, a double click and dragging do so too.</source>
        <translation>Cria variáveis a partir das linhas selecionadas; Enter, o clique duplo e o arraste também fazem isso.</translation>
    </message>
    <message>
        <source>Open a file for: %1</source>
        <translation>Abrir um arquivo para: %1</translation>
    </message>
    <message>
        <source>Filter of: %1</source>
        <translation>Filtro de: %1</translation>
    </message>
    <message>
        <source>Add the selected rows to the table of variables</source>
        <translation>Adicionar as linhas selecionadas à tabela de variáveis</translation>
    </message>
    <message>
        <source>%L1 of %L2</source>
        <translation>%L1 de %L2</translation>
    </message>
    <message>
        <source>No row matches the filter.</source>
        <translation>Nenhuma linha corresponde ao filtro.</translation>
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
        <translation>Fontes de variáveis</translation>
    </message>
    <message>
        <source>Kind of source</source>
        <translation>Tipo de fonte</translation>
    </message>
    <message>
        <source>CSV</source>
        <translation>CSV</translation>
    </message>
    <message>
        <source>Dataset</source>
        <translation>Conjunto de dados</translation>
    </message>
    <message>
        <source>Lookups</source>
        <translation>Tabelas de referência</translation>
    </message>
</context>
<context>
    <name>tessel::editor::StartPage</name>
    <message>
        <source>Describe a census or a survey</source>
        <translation>Descrever um censo ou uma pesquisa</translation>
    </message>
    <message>
        <source>A dictionary holds the entities, their variables and value labels.</source>
        <translation>Um dicionário contém as entidades, suas variáveis e rótulos de valor.</translation>
    </message>
    <message>
        <source>&amp;New dictionary</source>
        <translation>&amp;Novo dicionário</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>A&amp;brir…</translation>
    </message>
    <message>
        <source>Look at the &amp;sample census</source>
        <translation>Ver o censo de exemp&amp;lo</translation>
    </message>
    <message>
        <source>Recent files</source>
        <translation>Arquivos recentes</translation>
    </message>
    <message>
        <source>%1  —  %2</source>
        <translation>%1  —  %2</translation>
    </message>
    <message>
        <source>Re&amp;cent files</source>
        <translation>Arquivos &amp;recentes</translation>
    </message>
</context>
<context>
    <name>tessel::editor::Structure</name>
    <message>
        <source>add %1</source>
        <translation>inclusão de %1</translation>
    </message>
    <message>
        <source>delete %1</source>
        <translation>exclusão de %1</translation>
    </message>
    <message>
        <source>move %1</source>
        <translation>movimentação de %1</translation>
    </message>
    <message numerus="yes">
        <source>delete %n variables</source>
        <translation>
            <numerusform>exclusão de %n variável</numerusform>
            <numerusform>exclusão de %n variáveis</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>move %n variables</source>
        <translation>
            <numerusform>movimentação de %n variável</numerusform>
            <numerusform>movimentação de %n variáveis</numerusform>
        </translation>
    </message>
    <message>
        <source>add label %1 to %2</source>
        <translation>inclusão do rótulo %1 em %2</translation>
    </message>
    <message>
        <source>delete labels of %1</source>
        <translation>exclusão de rótulos de %1</translation>
    </message>
    <message>
        <source>move labels of %1</source>
        <translation>movimentação de rótulos de %1</translation>
    </message>
    <message numerus="yes">
        <source>paste %n labels</source>
        <translation>
            <numerusform>colagem de %n rótulo</numerusform>
            <numerusform>colagem de %n rótulos</numerusform>
        </translation>
    </message>
    <message>
        <source>copy labels of %1</source>
        <translation>cópia dos rótulos de %1</translation>
    </message>
    <message>
        <source>add range to %1</source>
        <translation>inclusão de intervalo em %1</translation>
    </message>
    <message>
        <source>delete ranges of %1</source>
        <translation>exclusão de intervalos de %1</translation>
    </message>
    <message>
        <source>move ranges of %1</source>
        <translation>movimentação de intervalos de %1</translation>
    </message>
</context>
<context>
    <name>tessel::editor::SummaryPage</name>
    <message>
        <source>Kept, though the dictionary does not have them:</source>
        <translation>Mantidos, embora o dicionário não os contenha:</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Resumo</translation>
    </message>
    <message>
        <source>What Finish writes.</source>
        <translation>O que é gravado ao concluir.</translation>
    </message>
    <message>
        <source>Entities of the run</source>
        <translation>Entidades do processamento</translation>
    </message>
    <message>
        <source>Entity</source>
        <translation>Entidade</translation>
    </message>
    <message>
        <source>Variables</source>
        <translation>Variáveis</translation>
    </message>
    <message>
        <source>Record type</source>
        <translation>Tipo de registro</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Opções</translation>
    </message>
    <message>
        <source>Names that the dictionary does not have</source>
        <translation>Nomes que o dicionário não contém</translation>
    </message>
    <message>
        <source>The dictionary has been edited since this window was opened; the run is planned on what it held then.</source>
        <translation>O dicionário foi alterado depois que esta janela foi aberta; o processamento é planejado com o que ele continha naquele momento.</translation>
    </message>
    <message>
        <source>Compound</source>
        <translation>Composto</translation>
    </message>
    <message>
        <source>SDC</source>
        <translation>SDC</translation>
    </message>
    <message>
        <source>Check sequence</source>
        <translation>Verificar sequência</translation>
    </message>
    <message>
        <source>not in the dictionary</source>
        <translation>não está no dicionário</translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>The run &quot;%1&quot; takes %2 and %3.</source>
        <translation>O processamento “%1” inclui %2 e %3.</translation>
    </message>
    <message>
        <source>The run is written to a file that you are asked for.</source>
        <translation>O processamento é gravado em um arquivo que lhe será pedido.</translation>
    </message>
    <message>
        <source>The run is written to %1.</source>
        <translation>O processamento é gravado em %1.</translation>
    </message>
</context>
<context>
    <name>tessel::editor::TablePane</name>
    <message>
        <source>The table is sorted; choose View, Order of the dictionary to move rows.</source>
        <translation>A tabela está classificada; para mover linhas, escolha Exibir, Ordem do dicionário.</translation>
    </message>
</context>
<context>
    <name>tessel::editor::TableView</name>
    <message>
        <source>Nothing matches the search. Esc clears it.</source>
        <translation>Nada corresponde à pesquisa. Esc a limpa.</translation>
    </message>
</context>
<context>
    <name>tessel::editor::VariableForm</name>
    <message>
        <source>&amp;Type</source>
        <translation>Tip&amp;o</translation>
    </message>
    <message>
        <source>Si&amp;ze</source>
        <translation>Taman&amp;ho</translation>
    </message>
    <message>
        <source>&amp;Missing</source>
        <translation>&amp;Valor ausente</translation>
    </message>
    <message>
        <source>&amp;Start</source>
        <translation>Iní&amp;cio</translation>
    </message>
    <message>
        <source>&amp;Length</source>
        <translation>Compri&amp;mento</translation>
    </message>
    <message>
        <source>De&amp;cimals</source>
        <translation>Decimai&amp;s</translation>
    </message>
    <message>
        <source>Not &amp;applicable</source>
        <translation>Não se ap&amp;lica</translation>
    </message>
    <message>
        <source>Rec&amp;ord</source>
        <translation>Re&amp;gistro</translation>
    </message>
    <message>
        <source>F&amp;ield</source>
        <translation>C&amp;ampo</translation>
    </message>
    <message>
        <source>Doc&amp;umentation</source>
        <translation>Doc&amp;umentação</translation>
    </message>
</context>
<context>
    <name>tessel::editor::VariablePane</name>
    <message>
        <source>Variables</source>
        <translation>Variáveis</translation>
    </message>
    <message>
        <source>Search variables</source>
        <translation>Pesquisar variáveis</translation>
    </message>
    <message>
        <source>Choose an entity to see its variables.</source>
        <translation>Escolha uma entidade para ver suas variáveis.</translation>
    </message>
    <message>
        <source>No variables yet. Drag fields from Sources, or press Ins.</source>
        <translation>Ainda não há variáveis. Arraste campos de Fontes ou pressione Ins.</translation>
    </message>
    <message>
        <source>change %1 of %2</source>
        <translation>alteração de “%1” em %2</translation>
    </message>
    <message>
        <source>Delete variables</source>
        <translation>Excluir variáveis</translation>
    </message>
    <message numerus="yes">
        <source>%n of the variables have value labels or ranges, which go with them. Delete?</source>
        <translation>
            <numerusform>%n das variáveis tem rótulos de valor ou intervalos, que serão excluídos com ela. Excluir?</numerusform>
            <numerusform>%n das variáveis têm rótulos de valor ou intervalos, que serão excluídos com elas. Excluir?</numerusform>
        </translation>
    </message>
    <message>
        <source>Choose the entity that is to have the fields first.</source>
        <translation>Escolha primeiro a entidade que receberá os campos.</translation>
    </message>
    <message>
        <source>add fields to %1</source>
        <translation>inclusão de campos em %1</translation>
    </message>
    <message>
        <source>No field was added.</source>
        <translation>Nenhum campo foi adicionado.</translation>
    </message>
    <message numerus="yes">
        <source>%n variables added to %1.</source>
        <translation>
            <numerusform>%n variável adicionada a %1.</numerusform>
            <numerusform>%n variáveis adicionadas a %1.</numerusform>
        </translation>
    </message>
    <message>
        <source>rename %1</source>
        <translation>mudança de nome de %1</translation>
    </message>
    <message>
        <source>a tag is a whole number</source>
        <translation>um Tag é um número inteiro</translation>
    </message>
    <message numerus="yes">
        <source>%n lookups were not added: %1 is not selectable. Mark it as selectable, or choose another entity.</source>
        <translation>
            <numerusform>%n tabela de referência não foi adicionada: %1 não é selecionável. Marque essa entidade como selecionável ou escolha outra.</numerusform>
            <numerusform>%n tabelas de referência não foram adicionadas: %1 não é selecionável. Marque essa entidade como selecionável ou escolha outra.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tessel::editor::VariablesPage</name>
    <message>
        <source>All &amp;variables of this entity</source>
        <translation>Todas as va&amp;riáveis desta entidade</translation>
    </message>
    <message>
        <source>&amp;All</source>
        <translation>&amp;Todas</translation>
    </message>
    <message>
        <source>Tick all variables that are shown</source>
        <translation>Marcar todas as variáveis exibidas</translation>
    </message>
    <message>
        <source>N&amp;one</source>
        <translation>Nenhu&amp;ma</translation>
    </message>
    <message>
        <source>Untick all variables that are shown</source>
        <translation>Desmarcar todas as variáveis exibidas</translation>
    </message>
    <message>
        <source>&amp;Invert</source>
        <translation>&amp;Inverter</translation>
    </message>
    <message>
        <source>Turn the ticks that are shown over</source>
        <translation>Inverter as marcas exibidas</translation>
    </message>
    <message>
        <source>Variables</source>
        <translation>Variáveis</translation>
    </message>
    <message>
        <source>Which variables of each entity are taken. Those that hold its code, label and weight need not be chosen.</source>
        <translation>Quais variáveis de cada entidade são usadas. As que contêm seu código, seu rótulo e seu peso não precisam ser escolhidas.</translation>
    </message>
    <message>
        <source>Ticked entities</source>
        <translation>Entidades marcadas</translation>
    </message>
    <message>
        <source>All variables of this entity</source>
        <translation>Todas as variáveis desta entidade</translation>
    </message>
    <message>
        <source>Takes every variable, also those that the dictionary gets later.</source>
        <translation>Usa todas as variáveis, inclusive as que forem adicionadas depois ao dicionário.</translation>
    </message>
    <message>
        <source>Search variables</source>
        <translation>Pesquisar variáveis</translation>
    </message>
    <message>
        <source>Variables of the entity</source>
        <translation>Variáveis da entidade</translation>
    </message>
    <message>
        <source>&amp;Entity:</source>
        <translation>&amp;Entidade:</translation>
    </message>
    <message>
        <source>&amp;Search:</source>
        <translation>Pe&amp;squisar:</translation>
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
        <translation>%1, padrão inválido</translation>
    </message>
    <message>
        <source>Search name, label, alias, group…</source>
        <translation>Pesquisar nome, rótulo, alias, grupo…</translation>
    </message>
</context>
<context>
    <name>tessel::editor::WizardText</name>
    <message>
        <source>1 entity</source>
        <translation>1 entidade</translation>
    </message>
    <message numerus="yes">
        <source>%n entities</source>
        <translation>
            <numerusform>%n entidade</numerusform>
            <numerusform>%n entidades</numerusform>
        </translation>
    </message>
    <message>
        <source>1 variable</source>
        <translation>1 variável</translation>
    </message>
    <message numerus="yes">
        <source>%n variables</source>
        <translation>
            <numerusform>%n variável</numerusform>
            <numerusform>%n variáveis</numerusform>
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
        <translation>não pode ser lido: é uma pasta; indique um arquivo</translation>
    </message>
    <message>
        <source>cannot be read: it is no regular file; save its content in a file and name that</source>
        <translation>não pode ser lido: não é um arquivo comum; salve seu conteúdo em um arquivo e indique esse arquivo</translation>
    </message>
    <message>
        <source>cannot be read: %1</source>
        <translation>não pode ser lido: %1</translation>
    </message>
    <message>
        <source>is empty; expected a file with data</source>
        <translation>está vazio; esperava-se um arquivo com dados</translation>
    </message>
    <message>
        <source>a text file</source>
        <translation>um arquivo de texto</translation>
    </message>
    <message>
        <source>an SPSS file</source>
        <translation>um arquivo do SPSS</translation>
    </message>
    <message>
        <source>an encrypted SPSS file</source>
        <translation>um arquivo do SPSS criptografado</translation>
    </message>
    <message>
        <source>an SPSS portable file</source>
        <translation>um arquivo portátil do SPSS</translation>
    </message>
    <message>
        <source>a Stata file</source>
        <translation>um arquivo do Stata</translation>
    </message>
    <message>
        <source>a SAS file</source>
        <translation>um arquivo do SAS</translation>
    </message>
    <message>
        <source>a SAS catalogue</source>
        <translation>um catálogo do SAS</translation>
    </message>
    <message>
        <source>a SAS transport file</source>
        <translation>um arquivo de transporte do SAS</translation>
    </message>
    <message>
        <source>a file of an unknown kind</source>
        <translation>um arquivo de tipo desconhecido</translation>
    </message>
</context>
<context>
    <name>tessel::sources::CategoriesText</name>
    <message numerus="yes">
        <source>%n empty codes are left out with their labels, because a category needs a code</source>
        <translation>
            <numerusform>%n código vazio é deixado de fora com seu rótulo, porque uma categoria precisa de um código</numerusform>
            <numerusform>%n códigos vazios são deixados de fora com seus rótulos, porque uma categoria precisa de um código</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n codes are left out, because a category&apos;s code cannot hold a blank: %1</source>
        <translation>
            <numerusform>%n código é deixado de fora, porque o código de uma categoria não pode conter espaços: %1</numerusform>
            <numerusform>%n códigos são deixados de fora, porque o código de uma categoria não pode conter espaços: %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>tabs and line ends in %n labels became blanks</source>
        <translation>
            <numerusform>as tabulações e quebras de linha de %n rótulo viraram espaços</numerusform>
            <numerusform>as tabulações e quebras de linha de %n rótulos viraram espaços</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tessel::sources::CodeTexts</name>
    <message>
        <source>as the source declares, the missing code is %1 instead of %2 and the not-applicable code is %3 instead of %4</source>
        <translation>conforme a fonte declara, o código de ausente é %1 em vez de %2 e o código de não se aplica é %3 em vez de %4</translation>
    </message>
    <message>
        <source>as the source declares, the missing code is %1 instead of %2</source>
        <translation>conforme a fonte declara, o código de ausente é %1 em vez de %2</translation>
    </message>
    <message>
        <source>as the source declares, the not-applicable code is %1 instead of %2</source>
        <translation>conforme a fonte declara, o código de não se aplica é %1 em vez de %2</translation>
    </message>
</context>
<context>
    <name>tessel::sources::Completeness</name>
    <message>
        <source>does not hold the value labels &quot;%1&quot; of the variable %2: it was cut off or saved without them; get the whole file</source>
        <translation>não contém os rótulos de valor “%1” da variável %2: foi truncado ou salvo sem eles; obtenha o arquivo completo</translation>
    </message>
    <message>
        <source>ends too early: it was cut off; get the whole file</source>
        <translation>termina cedo demais: foi truncado; obtenha o arquivo completo</translation>
    </message>
</context>
<context>
    <name>tessel::sources::CsvCells</name>
    <message>
        <source>The file is marked as UTF-8 but holds other bytes; it was read as Windows-1252.</source>
        <translation>O arquivo está marcado como UTF-8, mas contém outros bytes; foi lido como Windows-1252.</translation>
    </message>
    <message>
        <source>1 cell is not in UTF-8 as others are; it was read as Windows-1252.</source>
        <translation>1 célula não está em UTF-8 como as outras; foi lida como Windows-1252.</translation>
    </message>
    <message numerus="yes">
        <source>%n cells are not in UTF-8 as others are; they were read as Windows-1252.</source>
        <translation>
            <numerusform>%n célula não está em UTF-8 como as outras; foi lida como Windows-1252.</numerusform>
            <numerusform>%n células não estão em UTF-8 como as outras; foram lidas como Windows-1252.</numerusform>
        </translation>
    </message>
    <message>
        <source>1 cell holds what is no text in %1; choose another encoding if it matters.</source>
        <translation>1 célula contém algo que não é texto em %1; escolha outra codificação se isso for importante.</translation>
    </message>
    <message numerus="yes">
        <source>%n cells hold what is no text in %1; choose another encoding if it matters.</source>
        <translation>
            <numerusform>%n célula contém algo que não é texto em %1; escolha outra codificação se isso for importante.</numerusform>
            <numerusform>%n células contêm algo que não é texto em %1; escolha outra codificação se isso for importante.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tessel::sources::CsvColumn</name>
    <message>
        <source>No value was found; the type STRING is a guess.</source>
        <translation>Nenhum valor foi encontrado; o tipo STRING é uma suposição.</translation>
    </message>
    <message>
        <source>Its numbers have a decimal comma; they were read as if it were a point.</source>
        <translation>Seus números têm vírgula decimal; foram lidos como se fosse um ponto.</translation>
    </message>
    <message>
        <source>1 value holds blanks and is no category: a code cannot hold them.</source>
        <translation>1 valor contém espaços e não é uma categoria: um código não pode contê-los.</translation>
    </message>
    <message numerus="yes">
        <source>%n values hold blanks and are no categories: a code cannot hold them.</source>
        <translation>
            <numerusform>%n valor contém espaços e não é uma categoria: um código não pode contê-los.</numerusform>
            <numerusform>%n valores contêm espaços e não são categorias: um código não pode contê-los.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tessel::sources::CsvColumns</name>
    <message>
        <source>1 record, in line %1, has more or fewer cells than the header has fields.</source>
        <translation>1 registro, na linha %1, tem mais ou menos células do que o cabeçalho tem campos.</translation>
    </message>
    <message numerus="yes">
        <source>%n records have more or fewer cells than the header has fields, the first of them in line %1.</source>
        <translation>
            <numerusform>%n registro tem mais ou menos células do que o cabeçalho tem campos; está na linha %1.</numerusform>
            <numerusform>%n registros têm mais ou menos células do que o cabeçalho tem campos; o primeiro está na linha %1.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tessel::sources::CsvHeader</name>
    <message numerus="yes">
        <source>%1 and %n more</source>
        <translation>
            <numerusform>%1 e mais %n</numerusform>
            <numerusform>%1 e mais %n</numerusform>
        </translation>
    </message>
    <message>
        <source>1 field has no name and is called %1.</source>
        <translation>1 campo não tem nome e se chama %1.</translation>
    </message>
    <message numerus="yes">
        <source>%n fields have no name and are called %1.</source>
        <translation>
            <numerusform>%n campo não tem nome e se chama %1.</numerusform>
            <numerusform>%n campos não têm nome e se chamam %1.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n fields have the name %1.</source>
        <translation>
            <numerusform>%n campo tem o nome %1.</numerusform>
            <numerusform>%n campos têm o nome %1.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n names belong to more than one field: %1.</source>
        <translation>
            <numerusform>%n nome pertence a mais de um campo: %1.</numerusform>
            <numerusform>%n nomes pertencem a mais de um campo: %1.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tessel::sources::CsvReader</name>
    <message>
        <source>ends in the middle of a character; it may have been cut off</source>
        <translation>termina no meio de um caractere; pode ter sido truncado</translation>
    </message>
    <message>
        <source>is no text file: it holds zero bytes; expected a CSV file in UTF-8, in UTF-16 with a byte-order mark or in Windows-1252</source>
        <translation>não é um arquivo de texto: contém bytes nulos; esperava-se um arquivo CSV em UTF-8, em UTF-16 com marca de ordem de bytes ou em Windows-1252</translation>
    </message>
    <message>
        <source>has no end of its header within %1 MiB; close its quotation marks, or choose another file</source>
        <translation>não tem o fim do cabeçalho nos primeiros %1 MiB; feche as aspas ou escolha outro arquivo</translation>
    </message>
    <message>
        <source>has more than %1 fields in its first line; expected fewer</source>
        <translation>tem mais de %1 campos na primeira linha; esperavam-se menos</translation>
    </message>
    <message>
        <source>has names of fields that are no text in %1; choose another encoding</source>
        <translation>tem nomes de campos que não são texto em %1; escolha outra codificação</translation>
    </message>
    <message>
        <source>The names stand in line %1, below empty lines.</source>
        <translation>Os nomes estão na linha %1, abaixo de linhas vazias.</translation>
    </message>
    <message>
        <source>has a quotation mark in field %1 of its header that is never closed; close it in the file, or choose another separator</source>
        <translation>tem no campo %1 do cabeçalho aspas que não são fechadas; feche-as no arquivo ou escolha outro separador</translation>
    </message>
    <message>
        <source>is empty; expected the names of fields in its first line</source>
        <translation>está vazio; esperavam-se os nomes dos campos na primeira linha</translation>
    </message>
    <message>
        <source>has a record of more than %1 MiB, which begins in line %2; close its quotation marks, or choose another separator</source>
        <translation>tem um registro de mais de %1 MiB, que começa na linha %2; feche as aspas ou escolha outro separador</translation>
    </message>
    <message>
        <source>The record that begins in line %1 has a quotation mark that is never closed; it was left out.</source>
        <translation>O registro que começa na linha %1 tem aspas que não são fechadas; foi deixado de fora.</translation>
    </message>
    <message>
        <source>The file ends in the middle of a character; it may have been cut off.</source>
        <translation>O arquivo termina no meio de um caractere; pode ter sido truncado.</translation>
    </message>
    <message>
        <source>cannot be taken apart at the separator %1; choose a comma, a semicolon, a tab or a bar</source>
        <translation>não pode ser dividido pelo separador %1; escolha uma vírgula, um ponto e vírgula, uma tabulação ou uma barra vertical</translation>
    </message>
    <message>
        <source>cannot be read in %1, which is no known encoding; choose another</source>
        <translation>não pode ser lido em %1, que não é uma codificação conhecida; escolha outra</translation>
    </message>
    <message>
        <source>cannot be read: %1</source>
        <translation>não pode ser lido: %1</translation>
    </message>
    <message>
        <source>cannot be read: it is a folder; choose a file</source>
        <translation>não pode ser lido: é uma pasta; escolha um arquivo</translation>
    </message>
</context>
<context>
    <name>tessel::sources::FieldMaker</name>
    <message>
        <source>texts of more than %1 characters were cut there</source>
        <translation>os textos de mais de %1 caracteres foram cortados nesse ponto</translation>
    </message>
    <message>
        <source>the value labels of the format %1 are not in the catalogue</source>
        <translation>os rótulos de valor do formato %1 não estão no catálogo</translation>
    </message>
    <message>
        <source>is a date of the format %1 and stays a number</source>
        <translation>é uma data no formato %1 e continua como número</translation>
    </message>
    <message>
        <source>is a text of any length, for which no size is declared</source>
        <translation>é um texto de qualquer comprimento, para o qual nenhum tamanho é declarado</translation>
    </message>
    <message numerus="yes">
        <source>%n missing codes are left out with their labels, because a category&apos;s code is a number or a text: %1</source>
        <translation>
            <numerusform>%n código de ausente é deixado de fora com seu rótulo, porque o código de uma categoria é um número ou um texto: %1</numerusform>
            <numerusform>%n códigos de ausente são deixados de fora com seus rótulos, porque o código de uma categoria é um número ou um texto: %1</numerusform>
        </translation>
    </message>
    <message>
        <source>the range from %1 to %2 is left out: a field carries whole numbers from %3 to %4</source>
        <translation>o intervalo de %1 a %2 é deixado de fora: um campo só admite números inteiros de %3 a %4</translation>
    </message>
    <message>
        <source>the value labels &quot;%1&quot; are not in the file</source>
        <translation>os rótulos de valor “%1” não estão no arquivo</translation>
    </message>
</context>
<context>
    <name>tessel::sources::MissingCodes</name>
    <message numerus="yes">
        <source>%n missing codes are left out, because a field carries whole numbers: %1</source>
        <translation>
            <numerusform>%n código de ausente é deixado de fora, porque um campo só admite números inteiros: %1</numerusform>
            <numerusform>%n códigos de ausente são deixados de fora, porque um campo só admite números inteiros: %1</numerusform>
        </translation>
    </message>
    <message>
        <source>the missing code %1 is left out: a field carries whole numbers from %2 to %3</source>
        <translation>o código de ausente %1 é deixado de fora: um campo só admite números inteiros de %2 a %3</translation>
    </message>
    <message>
        <source>the missing values up to %1 are left out: a field carries single codes</source>
        <translation>os valores ausentes até %1 são deixados de fora: um campo só admite códigos individuais</translation>
    </message>
    <message>
        <source>the missing values from %1 up are left out: a field carries single codes</source>
        <translation>os valores ausentes a partir de %1 são deixados de fora: um campo só admite códigos individuais</translation>
    </message>
    <message>
        <source>the missing values from %1 to %2 are left out: a field carries single codes</source>
        <translation>os valores ausentes de %1 a %2 são deixados de fora: um campo só admite códigos individuais</translation>
    </message>
    <message numerus="yes">
        <source>%n missing codes are left out, because a field carries two: %1</source>
        <translation>
            <numerusform>%n código de ausente é deixado de fora, porque um campo só admite dois: %1</numerusform>
            <numerusform>%n códigos de ausente são deixados de fora, porque um campo só admite dois: %1</numerusform>
        </translation>
    </message>
    <message>
        <source>the missing values up to %1 are left out but for whole numbers with labels: a field carries single codes</source>
        <translation>os valores ausentes até %1 são deixados de fora, exceto os números inteiros com rótulo: um campo só admite códigos individuais</translation>
    </message>
    <message>
        <source>the missing values from %1 up are left out but for whole numbers with labels: a field carries single codes</source>
        <translation>os valores ausentes a partir de %1 são deixados de fora, exceto os números inteiros com rótulo: um campo só admite códigos individuais</translation>
    </message>
    <message>
        <source>the missing values from %1 to %2 are left out but for whole numbers with labels: a field carries single codes</source>
        <translation>os valores ausentes de %1 a %2 são deixados de fora, exceto os números inteiros com rótulo: um campo só admite códigos individuais</translation>
    </message>
</context>
<context>
    <name>tessel::sources::SasCatalogue</name>
    <message>
        <source>its catalogue %1 %2</source>
        <translation>seu catálogo %1 %2</translation>
    </message>
    <message>
        <source>There are no value labels: the catalogue %1 %2.</source>
        <translation>Não há rótulos de valor: o catálogo %1 %2.</translation>
    </message>
    <message numerus="yes">
        <source>The value labels of %n formats stand in a catalogue (.sas7bcat) that was not found; name it, or put it beside the file under the same name: %1.</source>
        <translation>
            <numerusform>Os rótulos de valor de %n formato (%1) estão em um catálogo (.sas7bcat) que não foi encontrado; indique-o ou coloque-o junto do arquivo com o mesmo nome.</numerusform>
            <numerusform>Os rótulos de valor de %n formatos (%1) estão em um catálogo (.sas7bcat) que não foi encontrado; indique-o ou coloque-o junto do arquivo com o mesmo nome.</numerusform>
        </translation>
    </message>
    <message>
        <source>is no SAS catalogue by its content</source>
        <translation>não é, pelo conteúdo, um catálogo do SAS</translation>
    </message>
    <message>
        <source>is damaged and cannot be read</source>
        <translation>está danificado e não pode ser lido</translation>
    </message>
</context>
<context>
    <name>tessel::sources::SourceReader</name>
    <message>
        <source>is encrypted; save it without a password</source>
        <translation>está criptografado; salve-o sem senha</translation>
    </message>
    <message>
        <source>is a SAS catalogue, which holds value labels and no fields; open the .sas7bdat file that it belongs to</source>
        <translation>é um catálogo do SAS, que contém rótulos de valor e nenhum campo; abra o arquivo .sas7bdat a que ele pertence</translation>
    </message>
    <message>
        <source>is of a kind that cannot be read; expected a file whose name ends in .%1</source>
        <translation>é de um tipo que não pode ser lido; esperava-se um arquivo cujo nome termine em .%1</translation>
    </message>
    <message>
        <source>is not %1 by its content, though its name ends in .%2; it is damaged or of another kind</source>
        <translation>não é, pelo conteúdo, %1, embora seu nome termine em .%2; está danificado ou é de outro tipo</translation>
    </message>
    <message>
        <source>is %1 by its content, though its name ends in .%2; rename it to end in .%3</source>
        <translation>é, pelo conteúdo, %1, embora seu nome termine em .%2; renomeie-o para que termine em .%3</translation>
    </message>
</context>
<context>
    <name>tessel::sources::StatisticalProblem</name>
    <message>
        <source>cannot be read: %1</source>
        <translation>não pode ser lido: %1</translation>
    </message>
    <message>
        <source>is of a version of its format that cannot be read; save it in another version</source>
        <translation>é de uma versão de seu formato que não pode ser lida; salve-o em outra versão</translation>
    </message>
    <message>
        <source>is compressed in a way that cannot be read; save it without compression</source>
        <translation>está compactado de uma forma que não pode ser lida; salve-o sem compactação</translation>
    </message>
    <message>
        <source>ends too early: it was cut off or is damaged; get the whole file</source>
        <translation>termina cedo demais: foi truncado ou está danificado; obtenha o arquivo completo</translation>
    </message>
    <message>
        <source>is damaged: it declares something larger than can be; get the file again</source>
        <translation>está danificado: declara algo maior do que é possível; obtenha o arquivo de novo</translation>
    </message>
    <message>
        <source>is damaged and cannot be read; get the file again</source>
        <translation>está danificado e não pode ser lido; obtenha o arquivo de novo</translation>
    </message>
    <message>
        <source>holds texts that are not in the encoding %1; choose another one</source>
        <translation>contém textos que não estão na codificação %1; escolha outra</translation>
    </message>
    <message>
        <source>holds texts that are not in the encoding that it declares; choose the encoding</source>
        <translation>contém textos que não estão na codificação que ele declara; escolha a codificação</translation>
    </message>
    <message>
        <source>holds texts that are not in the encoding %1, which it declares; choose another one</source>
        <translation>contém textos que não estão na codificação %1, que ele declara; escolha outra</translation>
    </message>
    <message>
        <source>declares the encoding %1, which is not known; choose another one</source>
        <translation>declara a codificação %1, que não é conhecida; escolha outra</translation>
    </message>
    <message>
        <source>cannot be read in the encoding %1, which is not known; choose another one</source>
        <translation>não pode ser lido na codificação %1, que não é conhecida; escolha outra</translation>
    </message>
</context>
<context>
    <name>tessel::sources::StatisticalReader</name>
    <message>
        <source>holds no variables; expected at least one</source>
        <translation>não contém variáveis; esperava-se pelo menos uma</translation>
    </message>
    <message>
        <source>Categories and ranges come from the first %1 records.</source>
        <translation>As categorias e os intervalos vêm dos primeiros %1 registros.</translation>
    </message>
    <message>
        <source>Categories and ranges come from the first %1 of %2 records.</source>
        <translation>As categorias e os intervalos vêm dos primeiros %1 de %2 registros.</translation>
    </message>
    <message>
        <source>The file holds more than one data set, of which only the first one is read; save each in a file of its own.</source>
        <translation>O arquivo contém mais de um conjunto de dados e só o primeiro é lido; salve cada um em um arquivo próprio.</translation>
    </message>
    <message>
        <source>The title is not valid UTF-8 and was read as Windows-1252.</source>
        <translation>O título não é UTF-8 válido e foi lido como Windows-1252.</translation>
    </message>
    <message numerus="yes">
        <source>Texts of %n fields are not valid UTF-8 and were read as Windows-1252: %1.</source>
        <translation>
            <numerusform>Os textos de %n campo não são UTF-8 válido e foram lidos como Windows-1252: %1.</numerusform>
            <numerusform>Os textos de %n campos não são UTF-8 válido e foram lidos como Windows-1252: %1.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tessel::sources::VariableMerge</name>
    <message>
        <source>an earlier field, %1, gives %2 a variable %3 too</source>
        <translation>um campo anterior, %1, também dá a %2 uma variável %3</translation>
    </message>
    <message>
        <source>%1 has the variable %2 already, with the same alias, label and group</source>
        <translation>%1 já tem a variável %2, com o mesmo alias, o mesmo rótulo e o mesmo grupo</translation>
    </message>
    <message>
        <source>%1 has a variable %2 already, with another alias, label or group</source>
        <translation>%1 já tem uma variável %2, com outro alias, outro rótulo ou outro grupo</translation>
    </message>
    <message>
        <source>gives a variable without a name, because it begins with &quot;_&quot; and a digit; name the variable in the dictionary</source>
        <translation>gera uma variável sem nome, porque começa com “_” e um dígito; dê nome à variável no dicionário</translation>
    </message>
</context>
</TS>
