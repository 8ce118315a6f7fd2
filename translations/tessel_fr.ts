<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>DictionaryTreeModel</name>
    <message>
        <source>Entity</source>
        <translation>Entité</translation>
    </message>
    <message>
        <source>Entity name already exists as a group name</source>
        <translation>Le nom de l&apos;entité existe déjà comme nom de groupe</translation>
    </message>
    <message>
        <source>Entity name already exists</source>
        <translation>Le nom de l&apos;entité existe déjà</translation>
    </message>
    <message>
        <source>Entity name already exists as an alias name</source>
        <translation>Le nom de l&apos;entité existe déjà comme alias</translation>
    </message>
    <message>
        <source>Invalid string</source>
        <translation>Chaîne non valide</translation>
    </message>
    <message>
        <source>Chain with length greater than 50</source>
        <translation>Chaîne de longueur supérieure à 50</translation>
    </message>
</context>
<context>
    <name>EntityModel</name>
    <message>
        <source>Entity</source>
        <translation>Entité</translation>
    </message>
</context>
<context>
    <name>UtilForms</name>
    <message>
        <source>Error</source>
        <translation>Erreur</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Information</translation>
    </message>
</context>
<context>
    <name>VarRangeModel</name>
    <message>
        <source>Minimum</source>
        <translation>Minimum</translation>
    </message>
    <message>
        <source>Maximum</source>
        <translation>Maximum</translation>
    </message>
</context>
<context>
    <name>VarValueLabelDiccionaryModel</name>
    <message>
        <source>Code</source>
        <translation>Code</translation>
    </message>
    <message>
        <source>Label</source>
        <translation>Libellé</translation>
    </message>
</context>
<context>
    <name>VariableDiccionaryModel</name>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Alias</source>
        <translation>Alias</translation>
    </message>
    <message>
        <source>Label</source>
        <translation>Libellé</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Groupe</translation>
    </message>
    <message>
        <source>Tag</source>
        <translation>Tag</translation>
    </message>
    <message>
        <source>The typed character string already exists</source>
        <translation>La chaîne de caractères saisie existe déjà</translation>
    </message>
    <message>
        <source>The typed character string already exists as the alias of a variable</source>
        <translation>La chaîne de caractères saisie existe déjà comme alias d&apos;une variable</translation>
    </message>
    <message>
        <source>The value already exists as the name/alias of a variable alias </source>
        <translation>La valeur existe déjà comme nom/alias d&apos;un alias de variable </translation>
    </message>
    <message>
        <source>The value already exists as the name-entity/name-variable/alias</source>
        <translation>La valeur existe déjà comme nom d&apos;entité/nom de variable/alias</translation>
    </message>
    <message>
        <source>Invalid string</source>
        <translation>Chaîne non valide</translation>
    </message>
    <message>
        <source>RefCode Variable</source>
        <translation>Variable RefCode</translation>
    </message>
    <message>
        <source>Variable identified as RefCode.
Keep it as RefCode?</source>
        <translation>Variable identifiée comme RefCode.
La conserver comme RefCode&#xa0;?</translation>
    </message>
    <message>
        <source>already exists.</source>
        <translation>existe déjà.</translation>
    </message>
    <message>
        <source>Overwrite?</source>
        <translation>Écraser&#xa0;?</translation>
    </message>
    <message>
        <source>Overwrite variable</source>
        <translation>Écraser la variable</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Avertissement</translation>
    </message>
    <message>
        <source>Duplicated names</source>
        <translation>Noms en double</translation>
    </message>
    <message>
        <source>Error creating</source>
        <translation>Erreur lors de la création de</translation>
    </message>
    <message>
        <source>Must be selectable entity.</source>
        <translation>L&apos;entité doit être sélectionnable.</translation>
    </message>
</context>
<context>
    <name>VariableModel</name>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Label</source>
        <translation>Libellé</translation>
    </message>
    <message>
        <source>Alias</source>
        <translation>Alias</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Groupe</translation>
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
        <translation>Nom</translation>
    </message>
    <message>
        <source>Label</source>
        <translation>Libellé</translation>
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
        <translation>Nom</translation>
    </message>
    <message>
        <source>Label</source>
        <translation>Libellé</translation>
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
        <translation>Entité</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Describes censuses and surveys: entities, variables, value labels.</source>
        <translation>Décrit recensements et enquêtes&#xa0;: entités, variables, libellés de valeur.</translation>
    </message>
    <message>
        <source>Write debug lines to standard error.</source>
        <translation>Écrit des lignes de débogage sur la sortie d&apos;erreur standard.</translation>
    </message>
    <message>
        <source>Save what the window shows to &lt;file&gt; and end.</source>
        <translation>Enregistre ce que montre la fenêtre dans &lt;file&gt;, puis se termine.</translation>
    </message>
    <message>
        <source>Go to the place that &lt;pointer&gt; names, as &quot;tessel check&quot; prints it.</source>
        <translation>Va à l&apos;endroit que désigne &lt;pointer&gt;, tel que l&apos;affiche &quot;tessel check&quot;.</translation>
    </message>
    <message>
        <source>End as soon as the window is there, to try an installation.</source>
        <translation>Se termine dès que la fenêtre apparaît, pour essayer une installation.</translation>
    </message>
    <message>
        <source>The dictionary to open.</source>
        <translation>Le dictionnaire à ouvrir.</translation>
    </message>
</context>
<context>
    <name>tessel::documents</name>
    <message>
        <source>expected an object at the top, found an array</source>
        <translation>un objet était attendu au premier niveau, un tableau s&apos;y trouve</translation>
    </message>
    <message>
        <source>expected an object at the top, found a text</source>
        <translation>un objet était attendu au premier niveau, un texte s&apos;y trouve</translation>
    </message>
    <message>
        <source>expected an object at the top, found a number</source>
        <translation>un objet était attendu au premier niveau, un nombre s&apos;y trouve</translation>
    </message>
    <message>
        <source>expected an object at the top, found %1</source>
        <translation>un objet était attendu au premier niveau, %1 s&apos;y trouve</translation>
    </message>
    <message>
        <source>cannot be read: it is a folder; name a file</source>
        <translation>ne peut pas être lu&#xa0;: c&apos;est un dossier&#xa0;; indiquez un fichier</translation>
    </message>
    <message>
        <source>cannot be read: %1</source>
        <translation>ne peut pas être lu&#xa0;: %1</translation>
    </message>
    <message>
        <source>is larger than 1 GiB; expected a smaller document</source>
        <translation>dépasse 1 Gio&#xa0;; un document plus petit était attendu</translation>
    </message>
    <message>
        <source>expected text in UTF-8, found UTF-16; save the file in UTF-8</source>
        <translation>un texte en UTF-8 était attendu, il est en UTF-16&#xa0;; enregistrez le fichier en UTF-8</translation>
    </message>
    <message>
        <source>expected an object at the top, found nothing: the file is empty</source>
        <translation>un objet était attendu au premier niveau, rien ne s&apos;y trouve&#xa0;: le fichier est vide</translation>
    </message>
    <message>
        <source>cannot be written: it is a folder; name a file</source>
        <translation>ne peut pas être écrit&#xa0;: c&apos;est un dossier&#xa0;; indiquez un fichier</translation>
    </message>
    <message>
        <source>cannot be written: %1</source>
        <translation>ne peut pas être écrit&#xa0;: %1</translation>
    </message>
    <message>
        <source>cannot be written: %1; nothing was changed</source>
        <translation>ne peut pas être écrit&#xa0;: %1&#xa0;; rien n&apos;a été modifié</translation>
    </message>
    <message>
        <source>expected &quot;,&quot; or &quot;}&quot; after a value in an object</source>
        <translation>&quot;,&quot; ou &quot;}&quot; était attendu après une valeur dans un objet</translation>
    </message>
    <message>
        <source>expected &quot;:&quot; after a key</source>
        <translation>&quot;:&quot; était attendu après une clé</translation>
    </message>
    <message>
        <source>expected &quot;]&quot; at the end of an array</source>
        <translation>&quot;]&quot; était attendu à la fin d&apos;un tableau</translation>
    </message>
    <message>
        <source>expected &quot;,&quot; between two values</source>
        <translation>&quot;,&quot; était attendu entre deux valeurs</translation>
    </message>
    <message>
        <source>expected a value: an object, an array, a text in double quotes, a number, true, false or null</source>
        <translation>une valeur était attendue&#xa0;: un objet, un tableau, un texte entre guillemets doubles, un nombre, true, false ou null</translation>
    </message>
    <message>
        <source>expected the rest of the document after a number</source>
        <translation>la suite du document était attendue après un nombre</translation>
    </message>
    <message>
        <source>expected a number that JSON and double precision can hold</source>
        <translation>un nombre représentable en JSON et en double précision était attendu</translation>
    </message>
    <message>
        <source>expected one of \&quot; \\ \/ \b \f \n \r \t \uXXXX after a backslash</source>
        <translation>une des séquences \&quot; \\ \/ \b \f \n \r \t \uXXXX était attendue avec la barre oblique inverse</translation>
    </message>
    <message>
        <source>expected text in UTF-8; save the file in that encoding</source>
        <translation>un texte en UTF-8 était attendu&#xa0;; enregistrez le fichier dans ce codage</translation>
    </message>
    <message>
        <source>expected a double quote at the end of a text</source>
        <translation>un guillemet double était attendu à la fin d&apos;un texte</translation>
    </message>
    <message>
        <source>expected a key in double quotes</source>
        <translation>une clé entre guillemets doubles était attendue</translation>
    </message>
    <message>
        <source>objects and arrays stand more than 1024 deep in one another; expected fewer levels</source>
        <translation>des objets et des tableaux sont imbriqués sur plus de 1024 niveaux&#xa0;; moins de niveaux étaient attendus</translation>
    </message>
    <message>
        <source>the document is too large; expected fewer values</source>
        <translation>le document est trop grand&#xa0;; moins de valeurs étaient attendues</translation>
    </message>
    <message>
        <source>expected nothing more after the end of the document</source>
        <translation>rien d&apos;autre n&apos;était attendu après la fin du document</translation>
    </message>
    <message>
        <source>expected a JSON document</source>
        <translation>un document JSON était attendu</translation>
    </message>
    <message>
        <source>%1, but the file ends here; it may have been cut off</source>
        <translation>%1, mais le fichier s&apos;arrête ici&#xa0;; il a peut-être été tronqué</translation>
    </message>
</context>
<context>
    <name>tessel::documents::Loss</name>
    <message>
        <source>%1 is not written</source>
        <translation>%1 n&apos;est pas écrit</translation>
    </message>
    <message>
        <source>%1 is written as %2</source>
        <translation>%1 est écrit sous la forme %2</translation>
    </message>
    <message>
        <source>the key is given more than once and only one of its values is kept</source>
        <translation>la clé figure plusieurs fois et une seule de ses valeurs est conservée</translation>
    </message>
    <message>
        <source>what stands here is not JSON as other programs read it; it was read as well as could be</source>
        <translation>ce qui figure ici n&apos;est pas du JSON tel que le lisent d&apos;autres programmes&#xa0;; la lecture a été faite au mieux</translation>
    </message>
</context>
<context>
    <name>tessel::documents::NameCheck</name>
    <message>
        <source>the dictionary itself</source>
        <translation>le dictionnaire lui-même</translation>
    </message>
    <message>
        <source>the entity has no name; give it one</source>
        <translation>l&apos;entité n&apos;a pas de nom&#xa0;; donnez-lui-en un</translation>
    </message>
    <message>
        <source>an entity&apos;s name is a letter or _ followed by letters, digits and _</source>
        <translation>le nom d&apos;une entité est une lettre ou _, suivie de lettres, de chiffres et de _</translation>
    </message>
    <message>
        <source>an entity&apos;s name holds no control character, double quote or backslash</source>
        <translation>le nom d&apos;une entité ne contient ni caractère de contrôle, ni guillemet double, ni barre oblique inverse</translation>
    </message>
    <message>
        <source>an entity&apos;s name has at most %1 characters; this one has %2</source>
        <translation>le nom d&apos;une entité compte au plus %1 caractères&#xa0;; celui-ci en a %2</translation>
    </message>
    <message>
        <source>the name is already that of %1; rename one of them</source>
        <translation>%1 porte déjà ce nom&#xa0;; renommez l&apos;un des deux</translation>
    </message>
    <message>
        <source>the name is also an alias of an entity; change one of them</source>
        <translation>ce nom est aussi l&apos;alias d&apos;une entité&#xa0;; changez l&apos;un des deux</translation>
    </message>
    <message>
        <source>the name is also a group of variables; change one of them</source>
        <translation>ce nom est aussi un groupe de variables&#xa0;; changez l&apos;un des deux</translation>
    </message>
</context>
<context>
    <name>tessel::documents::VariableFindings</name>
    <message>
        <source>a variable&apos;s label holds no control character, double quote or backslash</source>
        <translation>le libellé d&apos;une variable ne contient ni caractère de contrôle, ni guillemet double, ni barre oblique inverse</translation>
    </message>
    <message>
        <source>%1 is no type; a variable is a string, integer, real or bool</source>
        <translation>%1 n&apos;est pas un type&#xa0;; une variable est string, integer, real ou bool</translation>
    </message>
    <message>
        <source>%1, which is to hold the entity&apos;s code, is none of its variables; choose one or add it</source>
        <translation>%1, qui doit contenir le code de l&apos;entité, n&apos;est pas une de ses variables&#xa0;; choisissez-en une ou ajoutez-la</translation>
    </message>
    <message>
        <source>%1, which is to hold the entity&apos;s label, is none of its variables; choose one or add it</source>
        <translation>%1, qui doit contenir le libellé de l&apos;entité, n&apos;est pas une de ses variables&#xa0;; choisissez-en une ou ajoutez-la</translation>
    </message>
    <message>
        <source>%1, which is to hold the entity&apos;s weight, is none of its variables; choose one or add it</source>
        <translation>%1, qui doit contenir la pondération de l&apos;entité, n&apos;est pas une de ses variables&#xa0;; choisissez-en une ou ajoutez-la</translation>
    </message>
    <message>
        <source>a variable&apos;s name holds no control character, double quote or backslash</source>
        <translation>le nom d&apos;une variable ne contient ni caractère de contrôle, ni guillemet double, ni barre oblique inverse</translation>
    </message>
    <message>
        <source>the name is already that of a variable before it; rename one of them</source>
        <translation>une variable précédente porte déjà ce nom&#xa0;; renommez l&apos;une des deux</translation>
    </message>
    <message>
        <source>the name is also that of an entity; rename one of them</source>
        <translation>une entité porte aussi ce nom&#xa0;; renommez l&apos;une des deux</translation>
    </message>
    <message>
        <source>the code %1 is no such number as the variable&apos;s type wants and would be saved as 0; change the code or the type</source>
        <translation>le code %1 n&apos;est pas un nombre conforme au type de la variable et serait enregistré comme 0&#xa0;; changez le code ou le type</translation>
    </message>
    <message>
        <source>the minimum %1 is above the maximum %2; exchange them</source>
        <translation>le minimum %1 est supérieur au maximum %2&#xa0;; échangez-les</translation>
    </message>
    <message>
        <source>the variable has no name; give it one</source>
        <translation>la variable n&apos;a pas de nom ; donnez-lui-en un</translation>
    </message>
</context>
<context>
    <name>tessel::editor</name>
    <message>
        <source>About Tessel</source>
        <translation>À propos de Tessel</translation>
    </message>
    <message>
        <source>Tessel %1

Data dictionaries for hierarchical statistical databases.</source>
        <translation>Tessel %1

Dictionnaires de données pour bases de données statistiques hiérarchiques.</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>Raccourcis clavier</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>Touche</translation>
    </message>
    <message>
        <source>Does</source>
        <translation>Action</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menu</translation>
    </message>
    <message>
        <source>Type into the cell</source>
        <translation>Saisir dans la cellule</translation>
    </message>
    <message>
        <source>Tables</source>
        <translation>Tableaux</translation>
    </message>
    <message>
        <source>Return</source>
        <translation>Entrée</translation>
    </message>
    <message>
        <source>Keep what was typed and go to the next row</source>
        <translation>Conserver la saisie et passer à la ligne suivante</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1&#xa0;: %2</translation>
    </message>
    <message>
        <source>%1, line %2, column %3: %4</source>
        <translation>%1, ligne %2, colonne %3&#xa0;: %4</translation>
    </message>
</context>
<context>
    <name>tessel::editor::AutoSave</name>
    <message>
        <source>No copy of the unsaved work could be kept in %1: %2.</source>
        <translation>Aucune copie du travail non enregistré n&apos;a pu être conservée dans %1&#xa0;: %2.</translation>
    </message>
</context>
<context>
    <name>tessel::editor::CopyLabelsDialog</name>
    <message>
        <source>Copy labels</source>
        <translation>Copier les libellés</translation>
    </message>
    <message numerus="yes">
        <source>&amp;Variables that are to have the %n labels of %1 in place of their own:</source>
        <translation>
            <numerusform>&amp;Variables qui recevront %n libellé de %1 à la place des leurs&#xa0;:</numerusform>
            <numerusform>&amp;Variables qui recevront les %n libellés de %1 à la place des leurs&#xa0;:</numerusform>
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
        <translation>Champs CSV</translation>
    </message>
    <message>
        <source>Opens a CSV file; only its header is read.</source>
        <translation>Ouvre un fichier CSV&#xa0;; seul l&apos;en-tête est lu.</translation>
    </message>
    <message>
        <source>Open a CSV file to see its fields here.</source>
        <translation>Ouvrez un fichier CSV pour voir ici ses champs.</translation>
    </message>
    <message>
        <source>Separator of the CSV file</source>
        <translation>Séparateur du fichier CSV</translation>
    </message>
    <message>
        <source>What stands between the fields; a choice reads the header again.</source>
        <translation>Ce qui sépare les champs&#xa0;; un nouveau choix fait relire l&apos;en-tête.</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automatique</translation>
    </message>
    <message>
        <source>Comma</source>
        <translation>Virgule</translation>
    </message>
    <message>
        <source>Semicolon</source>
        <translation>Point-virgule</translation>
    </message>
    <message>
        <source>Tab</source>
        <translation>Tabulation</translation>
    </message>
    <message>
        <source>Bar</source>
        <translation>Barre verticale</translation>
    </message>
    <message>
        <source>&amp;Separator:</source>
        <translation>Sépa&amp;rateur&#xa0;:</translation>
    </message>
    <message>
        <source>Open a CSV file</source>
        <translation>Ouvrir un fichier CSV</translation>
    </message>
    <message>
        <source>CSV files (*.csv *.txt *.tsv);;All files (*)</source>
        <translation>Fichiers CSV (*.csv *.txt *.tsv);;Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>%1: 1 field in %2.</source>
        <translation>%1&#xa0;: 1 champ en %2.</translation>
    </message>
    <message numerus="yes">
        <source>%1: %n fields in %2.</source>
        <translation>
            <numerusform>%1&#xa0;: %n champ en %2.</numerusform>
            <numerusform>%1&#xa0;: %n champs en %2.</numerusform>
        </translation>
    </message>
    <message>
        <source>Separator: %1.</source>
        <translation>Séparateur&#xa0;: %1.</translation>
    </message>
</context>
<context>
    <name>tessel::editor::DatabasePage</name>
    <message>
        <source>B&amp;rowse…</source>
        <translation>Pa&amp;rcourir…</translation>
    </message>
    <message>
        <source>Choose the folder of the database</source>
        <translation>Choisir le dossier de la base de données</translation>
    </message>
    <message>
        <source>Bro&amp;wse…</source>
        <translation>Par&amp;courir…</translation>
    </message>
    <message>
        <source>Choose the source file</source>
        <translation>Choisir le fichier source</translation>
    </message>
    <message>
        <source>Names that the dictionary does not have</source>
        <translation>Noms absents du dictionnaire</translation>
    </message>
    <message>
        <source>Values that saving does not keep</source>
        <translation>Valeurs que l&apos;enregistrement ne conserve pas</translation>
    </message>
    <message>
        <source>Database</source>
        <translation>Base de données</translation>
    </message>
    <message>
        <source>Which database is built, where, and from which source file.</source>
        <translation>Quelle base de données est construite, où, et à partir de quel fichier source.</translation>
    </message>
    <message>
        <source>Database name</source>
        <translation>Nom de la base de données</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Dossier</translation>
    </message>
    <message>
        <source>The folder in which the database is built.</source>
        <translation>Le dossier dans lequel la base de données est construite.</translation>
    </message>
    <message>
        <source>Source file</source>
        <translation>Fichier source</translation>
    </message>
    <message>
        <source>The main source file, whose records the dictionary describes.</source>
        <translation>Le fichier source principal, dont le dictionnaire décrit les enregistrements.</translation>
    </message>
    <message>
        <source>&amp;Database name:</source>
        <translation>Nom de la base de &amp;données&#xa0;:</translation>
    </message>
    <message>
        <source>F&amp;older:</source>
        <translation>D&amp;ossier&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Source file:</source>
        <translation>Fichier so&amp;urce&#xa0;:</translation>
    </message>
    <message>
        <source>Give the database a name to go on.</source>
        <translation>Pour continuer, donnez un nom à la base de données.</translation>
    </message>
    <message>
        <source>The run names what the dictionary does not have; it is kept when the run is saved:</source>
        <translation>Le traitement nomme des éléments absents du dictionnaire&#xa0;; ils sont conservés à l&apos;enregistrement du traitement&#xa0;:</translation>
    </message>
    <message>
        <source>Saving loses or changes these values of the file:</source>
        <translation>L&apos;enregistrement perd ou modifie ces valeurs du fichier&#xa0;:</translation>
    </message>
</context>
<context>
    <name>tessel::editor::DatasetSourceTab</name>
    <message>
        <source>Dataset fields</source>
        <translation>Champs du jeu de données</translation>
    </message>
    <message>
        <source>Opens a dataset; only the description of its fields is read.</source>
        <translation>Ouvre un jeu de données&#xa0;; seule la description de ses champs est lue.</translation>
    </message>
    <message>
        <source>Open a dataset to see its fields here.</source>
        <translation>Ouvrez un jeu de données pour voir ici ses champs.</translation>
    </message>
    <message>
        <source>The dataset has no fields.</source>
        <translation>Le jeu de données n&apos;a pas de champs.</translation>
    </message>
    <message>
        <source>%1: 1 field.</source>
        <translation>%1&#xa0;: 1 champ.</translation>
    </message>
    <message numerus="yes">
        <source>%1: %n fields.</source>
        <translation>
            <numerusform>%1&#xa0;: %n champ.</numerusform>
            <numerusform>%1&#xa0;: %n champs.</numerusform>
        </translation>
    </message>
    <message>
        <source>Ra&amp;nges from data</source>
        <translation>E&amp;xtraire les plages</translation>
    </message>
    <message>
        <source>Open a dataset</source>
        <translation>Ouvrir un jeu de données</translation>
    </message>
    <message>
        <source>Datasets (*.sav *.zsav *.por *.dta *.sas7bdat *.xpt);;SPSS (*.sav *.zsav *.por);;Stata (*.dta);;SAS (*.sas7bdat *.xpt);;SAS catalogues of labels (*.sas7bcat);;All files (*)</source>
        <translation>Jeux de données (*.sav *.zsav *.por *.dta *.sas7bdat *.xpt);;SPSS (*.sav *.zsav *.por);;Stata (*.dta);;SAS (*.sas7bdat *.xpt);;Catalogues de libellés SAS (*.sas7bcat);;Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>En&amp;coding:</source>
        <translation>Codage du f&amp;ichier&#xa0;:</translation>
    </message>
    <message>
        <source> records</source>
        <translation> enregistrements</translation>
    </message>
    <message>
        <source>How many records are looked at for ranges and categories</source>
        <translation>Nombre d&apos;enregistrements examinés pour les plages et les catégories</translation>
    </message>
    <message>
        <source>How many records are looked at, from the first.</source>
        <translation>Nombre d&apos;enregistrements examinés, à partir du premier.</translation>
    </message>
    <message>
        <source>Find ranges and categories in the records of the dataset</source>
        <translation>Chercher des plages et des catégories dans les enregistrements du jeu de données</translation>
    </message>
    <message>
        <source>Reads the first records: numbers get the range of their values, and fields without categories get those that are found.</source>
        <translation>Lit les premiers enregistrements&#xa0;: les nombres reçoivent la plage de leurs valeurs et les champs sans catégories reçoivent celles qui sont trouvées.</translation>
    </message>
    <message>
        <source>Lists what the file says and the fields do not carry.</source>
        <translation>Énumère ce que le fichier indique et que les champs ne reprennent pas.</translation>
    </message>
    <message>
        <source>Remarks on the dataset</source>
        <translation>Remarques sur le jeu de données</translation>
    </message>
    <message>
        <source>%1: holds labels and no fields; open the .sas7bdat file that they belong to first</source>
        <translation>%1&#xa0;: contient des libellés et aucun champ&#xa0;; ouvrez d&apos;abord le fichier .sas7bdat auquel ils appartiennent</translation>
    </message>
    <message>
        <source>Records: %L1.</source>
        <translation>Enregistrements&#xa0;: %L1.</translation>
    </message>
    <message>
        <source>Encoding: %1.</source>
        <translation>Codage&#xa0;: %1.</translation>
    </message>
    <message>
        <source>Format: %1.</source>
        <translation>Format&#xa0;: %1.</translation>
    </message>
    <message>
        <source>Labels: %1.</source>
        <translation>Libellés&#xa0;: %1.</translation>
    </message>
    <message>
        <source>Records looked at: %L1.</source>
        <translation>Enregistrements examinés&#xa0;: %L1.</translation>
    </message>
    <message>
        <source>Title: %1.</source>
        <translation>Titre&#xa0;: %1.</translation>
    </message>
    <message>
        <source>1 re&amp;mark…</source>
        <translation>1 re&amp;marque…</translation>
    </message>
    <message numerus="yes">
        <source>%n re&amp;marks…</source>
        <translation>
            <numerusform>%n re&amp;marque…</numerusform>
            <numerusform>%n re&amp;marques…</numerusform>
        </translation>
    </message>
    <message>
        <source>Remarks on the dataset: %1</source>
        <translation>Remarques sur le jeu de données&#xa0;: %1</translation>
    </message>
    <message>
        <source>Remarks on %1</source>
        <translation>Remarques sur %1</translation>
    </message>
    <message>
        <source>%1 in the box &quot;Encoding&quot;</source>
        <translation>%1 dans la liste « Codage du fichier »</translation>
    </message>
</context>
<context>
    <name>tessel::editor::DeclaredCodesOffer</name>
    <message>
        <source>&amp;Set them</source>
        <translation>Appli&amp;quer ces codes</translation>
    </message>
    <message>
        <source>&amp;Leave</source>
        <translation>Laisser inc&amp;hangés</translation>
    </message>
    <message>
        <source>%1: missing code %2 instead of %3.</source>
        <translation>%1&#xa0;: code manquant %2 au lieu de %3.</translation>
    </message>
    <message>
        <source>%1: not-applicable code %2 instead of %3.</source>
        <translation>%1&#xa0;: code non applicable %2 au lieu de %3.</translation>
    </message>
    <message numerus="yes">
        <source>%n of the %1 new variables have missing or not-applicable codes declared in the file.</source>
        <translation>
            <numerusform>%n des %1 nouvelles variables a des codes manquant ou non applicable déclarés dans le fichier.</numerusform>
            <numerusform>%n des %1 nouvelles variables ont des codes manquant ou non applicable déclarés dans le fichier.</numerusform>
        </translation>
    </message>
    <message>
        <source>set declared codes</source>
        <translation>application des codes déclarés</translation>
    </message>
    <message numerus="yes">
        <source>%n variables have the declared codes now.</source>
        <translation>
            <numerusform>%n variable a maintenant les codes déclarés.</numerusform>
            <numerusform>%n variables ont maintenant les codes déclarés.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tessel::editor::DetailsDialog</name>
    <message>
        <source>Details</source>
        <translation>Détails</translation>
    </message>
</context>
<context>
    <name>tessel::editor::DictionaryDocument</name>
    <message>
        <source>is a run configuration, not a dictionary; open it with Run, Open run</source>
        <translation>est une configuration de traitement, pas un dictionnaire&#xa0;; ouvrez-la par Traitement, Ouvrir un traitement</translation>
    </message>
</context>
<context>
    <name>tessel::editor::EncodingBox</name>
    <message>
        <source>The encoding of the texts in the file; a choice, or a name and Return, reads it again.</source>
        <translation>Le codage des textes du fichier&#xa0;; un nouveau choix, ou un nom suivi d&apos;Entrée, fait relire le fichier.</translation>
    </message>
    <message>
        <source>Encoding of the dataset</source>
        <translation>Codage du jeu de données</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automatique</translation>
    </message>
</context>
<context>
    <name>tessel::editor::EntitiesPage</name>
    <message>
        <source>Entities</source>
        <translation>Entités</translation>
    </message>
    <message>
        <source>Which entities of the dictionary take part in the run.</source>
        <translation>Quelles entités du dictionnaire participent au traitement.</translation>
    </message>
    <message>
        <source>Entities of the run</source>
        <translation>Entités du traitement</translation>
    </message>
    <message>
        <source>&amp;Tick the entities, with the mouse or the space bar:</source>
        <translation>&amp;Cochez les entités avec la souris ou la barre d&apos;espace&#xa0;:</translation>
    </message>
    <message>
        <source>%1 ticked.</source>
        <translation>Cochées&#xa0;: %1.</translation>
    </message>
    <message>
        <source>The dictionary has no entities yet; add some before you plan a run.</source>
        <translation>Le dictionnaire n&apos;a pas encore d&apos;entités&#xa0;; ajoutez-en avant de préparer un traitement.</translation>
    </message>
    <message>
        <source>Tick at least one entity to go on.</source>
        <translation>Pour continuer, cochez au moins une entité.</translation>
    </message>
</context>
<context>
    <name>tessel::editor::EntityForm</name>
    <message>
        <source>&amp;Label</source>
        <translation>Li&amp;bellé</translation>
    </message>
    <message>
        <source>&amp;Alias</source>
        <translation>Al&amp;ias</translation>
    </message>
    <message>
        <source>&amp;Code variable</source>
        <translation>Variable de c&amp;ode</translation>
    </message>
    <message>
        <source>&amp;Weight variable</source>
        <translation>&amp;Variable de pondération</translation>
    </message>
    <message>
        <source>&amp;Selectable</source>
        <translation>&amp;Sélectionnable</translation>
    </message>
    <message>
        <source>D&amp;ocumentation</source>
        <translation>Docu&amp;mentation</translation>
    </message>
    <message>
        <source>Label var&amp;iable</source>
        <translation>Va&amp;riable de libellé</translation>
    </message>
    <message>
        <source>Virt&amp;ual</source>
        <translation>Virt&amp;uelle</translation>
    </message>
</context>
<context>
    <name>tessel::editor::EntityPane</name>
    <message>
        <source>Entities</source>
        <translation>Entités</translation>
    </message>
    <message>
        <source>rename %1</source>
        <translation>renommage de %1</translation>
    </message>
    <message>
        <source>Delete entity</source>
        <translation>Supprimer l&apos;entité</translation>
    </message>
    <message>
        <source>%1 goes with its variables and all entities below it. Delete?</source>
        <translation>%1 disparaît avec ses variables et toutes les entités situées au-dessous. Supprimer&#xa0;?</translation>
    </message>
    <message>
        <source>an entity needs a name</source>
        <translation>une entité doit avoir un nom</translation>
    </message>
    <message>
        <source>a name begins with a letter or _ and goes on with letters, digits and _</source>
        <translation>un nom commence par une lettre ou _ et se poursuit par des lettres, des chiffres et _</translation>
    </message>
</context>
<context>
    <name>tessel::editor::ExpressionDialog</name>
    <message>
        <source>&amp;Copy to clipboard</source>
        <translation>&amp;Copier dans le presse-papiers</translation>
    </message>
    <message>
        <source>Expression</source>
        <translation>Expression</translation>
    </message>
    <message>
        <source>Double-click in the lists, drag from them, or write here.</source>
        <translation>Double-cliquez dans les listes, faites glisser leurs éléments ou écrivez ici.</translation>
    </message>
    <message>
        <source>E&amp;xpression:</source>
        <translation>E&amp;xpression&#xa0;:</translation>
    </message>
    <message>
        <source>The expression is on the clipboard.</source>
        <translation>L&apos;expression est dans le presse-papiers.</translation>
    </message>
    <message>
        <source>&amp;Show:</source>
        <translation>Affic&amp;her&#xa0;:</translation>
    </message>
    <message>
        <source>Show entities and variables by</source>
        <translation>Afficher les entités et les variables par</translation>
    </message>
    <message>
        <source>Names</source>
        <translation>Noms</translation>
    </message>
    <message>
        <source>Labels</source>
        <translation>Libellés</translation>
    </message>
    <message>
        <source>Names and labels</source>
        <translation>Noms et libellés</translation>
    </message>
    <message>
        <source>&amp;Entities</source>
        <translation>&amp;Entités</translation>
    </message>
    <message>
        <source>&amp;Insert entity</source>
        <translation>&amp;Insérer l&apos;entité</translation>
    </message>
    <message>
        <source>&amp;Variables</source>
        <translation>&amp;Variables</translation>
    </message>
    <message>
        <source>Insert va&amp;riable</source>
        <translation>Insé&amp;rer la variable</translation>
    </message>
    <message>
        <source>Ca&amp;tegories</source>
        <translation>Caté&amp;gories</translation>
    </message>
    <message>
        <source>Insert cate&amp;gory</source>
        <translation>Insérer la ca&amp;tégorie</translation>
    </message>
    <message>
        <source>Inserts %1 at the cursor.</source>
        <translation>Insère %1 à la position du curseur.</translation>
    </message>
    <message>
        <source>Copy to clipboard</source>
        <translation>Copier dans le presse-papiers</translation>
    </message>
    <message>
        <source>C&amp;lose</source>
        <translation>&amp;Fermer</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Ctrl+Shift+C</source>
        <translation>Ctrl+Shift+C</translation>
    </message>
    <message>
        <source>Copies the whole expression (%1).</source>
        <translation>Copie toute l&apos;expression (%1).</translation>
    </message>
    <message>
        <source>The dictionary has no entities yet.</source>
        <translation>Le dictionnaire n&apos;a pas encore d&apos;entités.</translation>
    </message>
    <message>
        <source>%1 has no variables.</source>
        <translation>%1 n&apos;a pas de variables.</translation>
    </message>
    <message>
        <source>The variables of an entity are shown here.</source>
        <translation>Les variables d&apos;une entité s&apos;affichent ici.</translation>
    </message>
    <message>
        <source>%1 has no categories.</source>
        <translation>%1 n&apos;a pas de catégories.</translation>
    </message>
    <message>
        <source>The categories of a variable are shown here.</source>
        <translation>Les catégories d&apos;une variable s&apos;affichent ici.</translation>
    </message>
</context>
<context>
    <name>tessel::editor::FileHandling</name>
    <message>
        <source>%1, line %2, column %3: %4</source>
        <translation>%1, ligne %2, colonne %3&#xa0;: %4</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1&#xa0;: %2</translation>
    </message>
    <message>
        <source>Open dictionary</source>
        <translation>Ouvrir un dictionnaire</translation>
    </message>
    <message>
        <source>Dictionaries (*.json);;All files (*)</source>
        <translation>Dictionnaires (*.json);;Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>%1 opened.</source>
        <translation>%1 est ouvert.</translation>
    </message>
    <message>
        <source>a dictionary that has no file yet</source>
        <translation>un dictionnaire qui n&apos;a pas encore de fichier</translation>
    </message>
    <message>
        <source>Recover unsaved work</source>
        <translation>Récupérer le travail non enregistré</translation>
    </message>
    <message>
        <source>The editor ended without saving %1. Go on with the unsaved work?</source>
        <translation>L&apos;éditeur s&apos;est arrêté sans enregistrer %1. Reprendre le travail non enregistré&#xa0;?</translation>
    </message>
    <message>
        <source>The unsaved work of %1 is back; save it to keep it.</source>
        <translation>Le travail non enregistré est rétabli dans %1&#xa0;; enregistrez-le pour le conserver.</translation>
    </message>
    <message>
        <source>Unsaved changes</source>
        <translation>Modifications non enregistrées</translation>
    </message>
    <message>
        <source>Save the changes to %1 before it is closed?</source>
        <translation>Enregistrer les modifications avant de fermer %1&#xa0;?</translation>
    </message>
    <message>
        <source>the new dictionary</source>
        <translation>le nouveau dictionnaire</translation>
    </message>
    <message>
        <source>Save dictionary</source>
        <translation>Enregistrer le dictionnaire</translation>
    </message>
    <message>
        <source>File changed on disk</source>
        <translation>Fichier modifié sur le disque</translation>
    </message>
    <message>
        <source>Another program has changed %1 since it was opened here. Overwrite those changes?</source>
        <translation>Un autre programme a modifié %1 depuis son ouverture ici. Écraser ces modifications&#xa0;?</translation>
    </message>
    <message>
        <source>%1 is not saved; the file is as it was. %2</source>
        <translation>%1 n&apos;est pas enregistré&#xa0;; le fichier est resté tel quel. %2</translation>
    </message>
    <message>
        <source>%1 saved at %2.</source>
        <translation>%1 enregistré à %2.</translation>
    </message>
    <message>
        <source>Saving loses something</source>
        <translation>L&apos;enregistrement entraîne une perte</translation>
    </message>
    <message numerus="yes">
        <source>The opened file holds %n values that dictionaries do not keep. Save all the same?</source>
        <translation>
            <numerusform>Le fichier ouvert contient %n valeur que les dictionnaires ne conservent pas. Enregistrer quand même&#xa0;?</numerusform>
            <numerusform>Le fichier ouvert contient %n valeurs que les dictionnaires ne conservent pas. Enregistrer quand même&#xa0;?</numerusform>
        </translation>
    </message>
    <message>
        <source>Another program has changed %1. Read it again and lose the changes made here?</source>
        <translation>Un autre programme a modifié %1. Le relire et perdre les modifications faites ici&#xa0;?</translation>
    </message>
    <message>
        <source>Another program has changed %1. Read it again?</source>
        <translation>Un autre programme a modifié %1. Le relire&#xa0;?</translation>
    </message>
    <message>
        <source>The unsaved work was put aside as %1.</source>
        <translation>Le travail non enregistré a été mis de côté sous %1.</translation>
    </message>
</context>
<context>
    <name>tessel::editor::FormPane</name>
    <message>
        <source>change %1 of %2</source>
        <translation>modification de «&#xa0;%1&#xa0;» dans %2</translation>
    </message>
</context>
<context>
    <name>tessel::editor::LabelPane</name>
    <message>
        <source>Value labels</source>
        <translation>Libellés de valeur</translation>
    </message>
    <message>
        <source>Search codes and labels</source>
        <translation>Rechercher codes et libellés</translation>
    </message>
    <message>
        <source>Choose a variable to see its value labels.</source>
        <translation>Choisissez une variable pour voir ses libellés de valeur.</translation>
    </message>
    <message>
        <source>No value labels yet. Press Ins, or paste codes and labels from a spreadsheet.</source>
        <translation>Pas encore de libellés de valeur. Appuyez sur Inser ou collez des codes et des libellés depuis un tableur.</translation>
    </message>
    <message>
        <source>change %1 of label %2</source>
        <translation>modification de «&#xa0;%1&#xa0;» dans le libellé %2</translation>
    </message>
    <message numerus="yes">
        <source>%n labels pasted.</source>
        <translation>
            <numerusform>%n libellé collé.</numerusform>
            <numerusform>%n libellés collés.</numerusform>
        </translation>
    </message>
    <message>
        <source>The clipboard holds no lines of codes and labels.</source>
        <translation>Le presse-papiers ne contient pas de lignes de codes et de libellés.</translation>
    </message>
    <message numerus="yes">
        <source>%n labels copied.</source>
        <translation>
            <numerusform>%n libellé copié.</numerusform>
            <numerusform>%n libellés copiés.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tessel::editor::LookupList</name>
    <message>
        <source>expected a list of lookups, [{&quot;id&quot;: &quot;...&quot;, &quot;label&quot;: &quot;...&quot;}, ...], or an object with such a list under &quot;lookups&quot;</source>
        <translation>une liste de tables de référence, [{&quot;id&quot;: &quot;...&quot;, &quot;label&quot;: &quot;...&quot;}, ...], ou un objet contenant une telle liste sous &quot;lookups&quot; était attendu</translation>
    </message>
    <message>
        <source>lookup %1 is not as expected; expected an object with the texts &quot;id&quot;, which must not be empty, and &quot;label&quot;</source>
        <translation>la table de référence %1 n&apos;est pas conforme&#xa0;; un objet contenant les textes &quot;id&quot;, qui ne doit pas être vide, et &quot;label&quot; était attendu</translation>
    </message>
    <message>
        <source>expected text in UTF-8, found UTF-16; save the file in UTF-8</source>
        <translation>un texte en UTF-8 était attendu, il est en UTF-16&#xa0;; enregistrez le fichier en UTF-8</translation>
    </message>
</context>
<context>
    <name>tessel::editor::LookupSourceTab</name>
    <message>
        <source>Lookups</source>
        <translation>Tables de référence</translation>
    </message>
    <message>
        <source>Opens a list of lookups in JSON.</source>
        <translation>Ouvre une liste de tables de référence en JSON.</translation>
    </message>
    <message>
        <source>Open a list of lookups to see them here.</source>
        <translation>Ouvrez une liste de tables de référence pour les voir ici.</translation>
    </message>
    <message>
        <source>The list of lookups is empty.</source>
        <translation>La liste de tables de référence est vide.</translation>
    </message>
    <message>
        <source>Open a list of lookups</source>
        <translation>Ouvrir une liste de tables de référence</translation>
    </message>
    <message>
        <source>Lists of lookups (*.json);;All files (*)</source>
        <translation>Listes de tables de référence (*.json);;Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>%1: 1 lookup.</source>
        <translation>%1&#xa0;: 1 table de référence.</translation>
    </message>
    <message numerus="yes">
        <source>%1: %n lookups.</source>
        <translation>
            <numerusform>%1&#xa0;: %n table de référence.</numerusform>
            <numerusform>%1&#xa0;: %n tables de référence.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tessel::editor::MainWindow</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Fichier</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Outils</translation>
    </message>
    <message>
        <source>&amp;New</source>
        <translation>&amp;Nouveau</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>&amp;Ouvrir…</translation>
    </message>
    <message>
        <source>Open &amp;recent</source>
        <translation>Ouvrir un fichier &amp;récent</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Enregistrer</translation>
    </message>
    <message>
        <source>Save &amp;as…</source>
        <translation>Enregistrer &amp;sous…</translation>
    </message>
    <message>
        <source>Ctrl+Shift+S</source>
        <translation>Ctrl+Shift+S</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Fermer</translation>
    </message>
    <message>
        <source>Ctrl+W</source>
        <translation>Ctrl+W</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Quitter</translation>
    </message>
    <message>
        <source>Ctrl+Q</source>
        <translation>Ctrl+Q</translation>
    </message>
    <message>
        <source>No files yet</source>
        <translation>Pas encore de fichiers</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>É&amp;dition</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Rétablir</translation>
    </message>
    <message>
        <source>Ctrl+Shift+Z</source>
        <translation>Ctrl+Shift+Z</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>A&amp;jouter</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Supprimer</translation>
    </message>
    <message>
        <source>Move u&amp;p</source>
        <translation>&amp;Monter</translation>
    </message>
    <message>
        <source>Move do&amp;wn</source>
        <translation>&amp;Descendre</translation>
    </message>
    <message>
        <source>&amp;Copy labels</source>
        <translation>&amp;Copier les libellés</translation>
    </message>
    <message>
        <source>Ctrl+Shift+C</source>
        <translation>Ctrl+Shift+C</translation>
    </message>
    <message>
        <source>Pa&amp;ste labels</source>
        <translation>C&amp;oller les libellés</translation>
    </message>
    <message>
        <source>Ctrl+Shift+V</source>
        <translation>Ctrl+Shift+V</translation>
    </message>
    <message>
        <source>&amp;Find</source>
        <translation>Rec&amp;hercher</translation>
    </message>
    <message>
        <source>C&amp;lear search</source>
        <translation>&amp;Effacer la recherche</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Affichage</translation>
    </message>
    <message>
        <source>&amp;Entities</source>
        <translation>&amp;Entités</translation>
    </message>
    <message>
        <source>&amp;Variables</source>
        <translation>&amp;Variables</translation>
    </message>
    <message>
        <source>&amp;Labels, ranges, properties</source>
        <translation>&amp;Libellés, plages, propriétés</translation>
    </message>
    <message>
        <source>&amp;Sources</source>
        <translation>&amp;Sources</translation>
    </message>
    <message>
        <source>&amp;Problems</source>
        <translation>&amp;Problèmes</translation>
    </message>
    <message>
        <source>&amp;Docks</source>
        <translation>Pa&amp;nneaux</translation>
    </message>
    <message>
        <source>&amp;Order of the dictionary</source>
        <translation>&amp;Ordre du dictionnaire</translation>
    </message>
    <message>
        <source>Ctrl+Shift+O</source>
        <translation>Ctrl+Shift+O</translation>
    </message>
    <message>
        <source>Lan&amp;guage</source>
        <translation>Lan&amp;gue</translation>
    </message>
    <message>
        <source>As the system</source>
        <translation>Comme le système</translation>
    </message>
    <message>
        <source>The language changes when the editor starts the next time.</source>
        <translation>La langue changera au prochain démarrage de l&apos;éditeur.</translation>
    </message>
    <message>
        <source>&amp;Dictionary</source>
        <translation>Di&amp;ctionnaire</translation>
    </message>
    <message>
        <source>Add &amp;entity</source>
        <translation>Ajouter une &amp;entité</translation>
    </message>
    <message>
        <source>Ctrl+Shift+E</source>
        <translation>Ctrl+Shift+E</translation>
    </message>
    <message>
        <source>Add &amp;variable</source>
        <translation>Ajouter une &amp;variable</translation>
    </message>
    <message>
        <source>Ctrl+Shift+A</source>
        <translation>Ctrl+Shift+A</translation>
    </message>
    <message>
        <source>Add &amp;label</source>
        <translation>Ajouter un &amp;libellé</translation>
    </message>
    <message>
        <source>Ctrl+Shift+L</source>
        <translation>Ctrl+Shift+L</translation>
    </message>
    <message>
        <source>Add &amp;range</source>
        <translation>Ajouter une &amp;plage</translation>
    </message>
    <message>
        <source>Ctrl+Shift+R</source>
        <translation>Ctrl+Shift+R</translation>
    </message>
    <message>
        <source>Copy labels to &amp;other variables…</source>
        <translation>Copier les libellés vers d&apos;&amp;autres variables…</translation>
    </message>
    <message>
        <source>E&amp;xpression…</source>
        <translation>E&amp;xpression…</translation>
    </message>
    <message>
        <source>Ctrl+E</source>
        <translation>Ctrl+E</translation>
    </message>
    <message>
        <source>&amp;Check now</source>
        <translation>Vérifier &amp;maintenant</translation>
    </message>
    <message>
        <source>&amp;Next problem</source>
        <translation>Problème &amp;suivant</translation>
    </message>
    <message>
        <source>&amp;Previous problem</source>
        <translation>Problème p&amp;récédent</translation>
    </message>
    <message>
        <source>Choose the variable whose labels are to be copied first.</source>
        <translation>Choisissez d&apos;abord la variable dont les libellés sont à copier.</translation>
    </message>
    <message>
        <source>&amp;Run</source>
        <translation>&amp;Traitement</translation>
    </message>
    <message>
        <source>&amp;New run…</source>
        <translation>&amp;Nouveau traitement…</translation>
    </message>
    <message>
        <source>Ctrl+R</source>
        <translation>Ctrl+R</translation>
    </message>
    <message>
        <source>&amp;Open run…</source>
        <translation>&amp;Ouvrir un traitement…</translation>
    </message>
    <message>
        <source>Open run</source>
        <translation>Ouvrir un traitement</translation>
    </message>
    <message>
        <source>Run configurations (*.json);;All files (*)</source>
        <translation>Configurations de traitement (*.json);;Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>Aid&amp;e</translation>
    </message>
    <message>
        <source>&amp;Keys</source>
        <translation>&amp;Raccourcis clavier</translation>
    </message>
    <message>
        <source>&amp;About Tessel</source>
        <translation>À &amp;propos de Tessel</translation>
    </message>
    <message>
        <source>Ran&amp;ges</source>
        <translation>Pla&amp;ges</translation>
    </message>
    <message>
        <source>&amp;Properties</source>
        <translation>&amp;Propriétés</translation>
    </message>
    <message>
        <source>Entities</source>
        <translation>Entités</translation>
    </message>
    <message>
        <source>Variable</source>
        <translation>Variable</translation>
    </message>
    <message>
        <source>Sources</source>
        <translation>Sources</translation>
    </message>
    <message>
        <source>Problems</source>
        <translation>Problèmes</translation>
    </message>
    <message>
        <source>Problems (%1)</source>
        <translation>Problèmes (%1)</translation>
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
        <translation>Nouveau dictionnaire</translation>
    </message>
    <message numerus="yes">
        <source>%n entities</source>
        <translation>
            <numerusform>%n entité</numerusform>
            <numerusform>%n entités</numerusform>
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
            <numerusform>%n libellé</numerusform>
            <numerusform>%n libellés</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Saving would lose or change %n values that the file holds.</source>
        <translation>
            <numerusform>L&apos;enregistrement perdrait ou modifierait %n valeur contenue dans le fichier.</numerusform>
            <numerusform>L&apos;enregistrement perdrait ou modifierait %n valeurs contenues dans le fichier.</numerusform>
        </translation>
    </message>
    <message>
        <source>Open the sa&amp;mple census</source>
        <translation>Ouvrir le recensement d&apos;e&amp;xemple</translation>
    </message>
    <message>
        <source>&amp;Variable</source>
        <translation>Varia&amp;ble</translation>
    </message>
    <message numerus="yes">
        <source>%n problems found.</source>
        <translation>
            <numerusform>%n problème trouvé.</numerusform>
            <numerusform>%n problèmes trouvés.</numerusform>
        </translation>
    </message>
    <message>
        <source>La&amp;bels</source>
        <translation>&amp;Libellés</translation>
    </message>
    <message>
        <source>Entit&amp;y</source>
        <translation>E&amp;ntité</translation>
    </message>
    <message>
        <source>Labels in the &amp;tree</source>
        <translation>Libellés dans l&apos;&amp;arbre</translation>
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
        <translation>Détail&amp;s</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Détails</translation>
    </message>
    <message>
        <source>Close this notice</source>
        <translation>Fermer cet avis</translation>
    </message>
</context>
<context>
    <name>tessel::editor::OperatorBar</name>
    <message>
        <source>Equal to</source>
        <translation>Égal à</translation>
    </message>
    <message>
        <source>Different from</source>
        <translation>Différent de</translation>
    </message>
    <message>
        <source>Less than</source>
        <translation>Inférieur à</translation>
    </message>
    <message>
        <source>Less than or equal to</source>
        <translation>Inférieur ou égal à</translation>
    </message>
    <message>
        <source>Greater than</source>
        <translation>Supérieur à</translation>
    </message>
    <message>
        <source>Greater than or equal to</source>
        <translation>Supérieur ou égal à</translation>
    </message>
    <message>
        <source>And: both sides hold</source>
        <translation>Et&#xa0;: les deux côtés sont vrais</translation>
    </message>
    <message>
        <source>Or: one side holds at least</source>
        <translation>Ou&#xa0;: un côté au moins est vrai</translation>
    </message>
    <message>
        <source>Not: what follows does not hold</source>
        <translation>Non&#xa0;: ce qui suit n&apos;est pas vrai</translation>
    </message>
    <message>
        <source>Opening bracket</source>
        <translation>Parenthèse ouvrante</translation>
    </message>
    <message>
        <source>Closing bracket</source>
        <translation>Parenthèse fermante</translation>
    </message>
</context>
<context>
    <name>tessel::editor::OptionsPage</name>
    <message>
        <source>Create not-applicable and &amp;missing codes inside the ranges</source>
        <translation>Créer les codes non applicable et &amp;manquant à l&apos;intérieur des plages</translation>
    </message>
    <message>
        <source>Create no &amp;ranges</source>
        <translation>Ne pas créer de pla&amp;ges</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Options</translation>
    </message>
    <message>
        <source>How the database is built, as a whole and entity by entity.</source>
        <translation>Comment la base de données est construite, dans son ensemble et entité par entité.</translation>
    </message>
    <message>
        <source>Create not-applicable and missing codes inside the ranges</source>
        <translation>Créer les codes non applicable et manquant à l&apos;intérieur des plages</translation>
    </message>
    <message>
        <source>Create no ranges</source>
        <translation>Ne pas créer de plages</translation>
    </message>
    <message>
        <source>Options of each entity</source>
        <translation>Options de chaque entité</translation>
    </message>
    <message>
        <source>Entity</source>
        <translation>Entité</translation>
    </message>
    <message>
        <source>Record type</source>
        <translation>Type d&apos;enregistrement</translation>
    </message>
    <message>
        <source>Compound</source>
        <translation>Composé</translation>
    </message>
    <message>
        <source>SDC</source>
        <translation>SDC</translation>
    </message>
    <message>
        <source>Check sequence</source>
        <translation>Vérifier la séquence</translation>
    </message>
    <message>
        <source>The record type that tells the entity&apos;s records in the source file.</source>
        <translation>Le type d&apos;enregistrement qui distingue les enregistrements de l&apos;entité dans le fichier source.</translation>
    </message>
    <message>
        <source>Handed on to the program that builds the database, as createCompound.</source>
        <translation>Transmis comme createCompound au programme qui construit la base de données.</translation>
    </message>
    <message>
        <source>Handed on to the program that builds the database, as createSDC.</source>
        <translation>Transmis comme createSDC au programme qui construit la base de données.</translation>
    </message>
    <message>
        <source>The sequence of the entity&apos;s records is checked.</source>
        <translation>La séquence des enregistrements de l&apos;entité est vérifiée.</translation>
    </message>
    <message>
        <source>&amp;Options of each entity:</source>
        <translation>&amp;Options de chaque entité&#xa0;:</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 sur %2</translation>
    </message>
</context>
<context>
    <name>tessel::editor::ProblemsPane</name>
    <message>
        <source>Problems</source>
        <translation>Problèmes</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Emplacement</translation>
    </message>
    <message>
        <source>Problem</source>
        <translation>Problème</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>Code</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1&#xa0;: %2</translation>
    </message>
</context>
<context>
    <name>tessel::editor::RangePane</name>
    <message>
        <source>Ranges</source>
        <translation>Plages</translation>
    </message>
    <message>
        <source>Search ranges</source>
        <translation>Rechercher des plages</translation>
    </message>
    <message>
        <source>Choose a variable to see its valid ranges.</source>
        <translation>Choisissez une variable pour voir ses plages valides.</translation>
    </message>
    <message>
        <source>No ranges: every value is valid. Press Ins to add one.</source>
        <translation>Aucune plage&#xa0;: toute valeur est valide. Appuyez sur Inser pour en ajouter une.</translation>
    </message>
    <message>
        <source>change %1 of %2</source>
        <translation>modification de «&#xa0;%1&#xa0;» dans %2</translation>
    </message>
</context>
<context>
    <name>tessel::editor::ReadingProgress</name>
    <message>
        <source>Reading the records of %1…</source>
        <translation>Lecture des enregistrements de %1…</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>Reading</source>
        <translation>Lecture</translation>
    </message>
</context>
<context>
    <name>tessel::editor::RecordingDelegate</name>
    <message>
        <source>a whole number from %1 to %2 is expected</source>
        <translation>un nombre entier de %1 à %2 est attendu</translation>
    </message>
    <message>
        <source>a number such as 12 or -0.5 is expected</source>
        <translation>un nombre tel que 12 ou -0.5 est attendu</translation>
    </message>
    <message>
        <source>the rules of the dictionary do not allow it</source>
        <translation>les règles du dictionnaire ne le permettent pas</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was not taken: %2. Correct it, or press Esc to give it up.</source>
        <translation>«&#xa0;%1&#xa0;» n&apos;a pas été accepté&#xa0;: %2. Corrigez la saisie ou appuyez sur Échap pour l&apos;abandonner.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was not taken (%2): %3. It can be copied from here.</source>
        <translation>«&#xa0;%1&#xa0;» n&apos;a pas été accepté (%2)&#xa0;: %3. Le texte peut être copié ici.</translation>
    </message>
</context>
<context>
    <name>tessel::editor::RecoveryBar</name>
    <message>
        <source>Open &amp;it</source>
        <translation>L&apos;ou&amp;vrir</translation>
    </message>
    <message>
        <source>La&amp;ter</source>
        <translation>Pl&amp;us tard</translation>
    </message>
    <message>
        <source>An earlier session ended without saving a dictionary that has no file yet.</source>
        <translation>Une session précédente s&apos;est terminée sans enregistrer un dictionnaire qui n&apos;a pas encore de fichier.</translation>
    </message>
</context>
<context>
    <name>tessel::editor::RunPlan</name>
    <message>
        <source>is a dictionary, not a run configuration; open it with File, Open</source>
        <translation>est un dictionnaire, pas une configuration de traitement&#xa0;; ouvrez-le par Fichier, Ouvrir</translation>
    </message>
</context>
<context>
    <name>tessel::editor::RunWizard</name>
    <message>
        <source>%1: %2.</source>
        <translation>%1&#xa0;: %2.</translation>
    </message>
    <message>
        <source>%1, line %2, column %3: %4.</source>
        <translation>%1, ligne %2, colonne %3&#xa0;: %4.</translation>
    </message>
    <message>
        <source>Run wizard</source>
        <translation>Assistant de traitement</translation>
    </message>
    <message>
        <source>New run</source>
        <translation>Nouveau traitement</translation>
    </message>
    <message>
        <source>Run %1</source>
        <translation>Traitement %1</translation>
    </message>
    <message>
        <source>The run has changes that are not saved. Throw them away?</source>
        <translation>Le traitement comporte des modifications non enregistrées. Les abandonner&#xa0;?</translation>
    </message>
    <message>
        <source>run.json</source>
        <translation>traitement.json</translation>
    </message>
    <message>
        <source>Save the run</source>
        <translation>Enregistrer le traitement</translation>
    </message>
    <message>
        <source>Run configurations (*.json);;All files (*)</source>
        <translation>Configurations de traitement (*.json);;Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>%1: holds the dictionary itself; choose another file.</source>
        <translation>%1&#xa0;: contient le dictionnaire lui-même&#xa0;; choisissez un autre fichier.</translation>
    </message>
</context>
<context>
    <name>tessel::editor::SearchField</name>
    <message>
        <source>Search with a pattern (regular expression)</source>
        <translation>Rechercher avec un motif (expression régulière)</translation>
    </message>
    <message>
        <source>Search with a pattern</source>
        <translation>Rechercher avec un motif</translation>
    </message>
    <message>
        <source>Rows shown</source>
        <translation>Lignes affichées</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 sur %2</translation>
    </message>
</context>
<context>
    <name>tessel::editor::SearchLine</name>
    <message>
        <source>Part of a text, or a regular expression such as ^P0[1-9]; letter case does not count.</source>
        <translation>Une partie d&apos;un texte ou une expression régulière telle que ^P0[1-9]&#xa0;; la casse n&apos;est pas prise en compte.</translation>
    </message>
    <message>
        <source>Part of a text; letter case does not count.</source>
        <translation>Une partie d’un texte&#xa0;; la casse ne compte pas.</translation>
    </message>
    <message>
        <source>This is no pattern: %1.</source>
        <translation>Ce n&apos;est pas un motif&#xa0;: %1.</translation>
    </message>
</context>
<context>
    <name>tessel::editor::SelectionPage</name>
    <message>
        <source>Selection</source>
        <translation>Sélection</translation>
    </message>
    <message>
        <source>What has been chosen: a tick stands for all variables of an entity, a half tick for some, an empty box for none.</source>
        <translation>Ce qui a été choisi&#xa0;: une coche indique toutes les variables d&apos;une entité, une coche partielle certaines d&apos;entre elles, une case vide aucune.</translation>
    </message>
    <message>
        <source>Variables taken of the entity</source>
        <translation>Variables retenues de l&apos;entité</translation>
    </message>
    <message>
        <source>&amp;Selection:</source>
        <translation>Sé&amp;lection&#xa0;:</translation>
    </message>
    <message>
        <source>Go to an entity to see its variables.</source>
        <translation>Allez à une entité pour voir ses variables.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1&#xa0;: %2</translation>
    </message>
</context>
<context>
    <name>tessel::editor::SourceTab</name>
    <message>
        <source>&amp;Add to table</source>
        <translation>A&amp;jouter au tableau</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>&amp;Ouvrir…</translation>
    </message>
    <message>
        <source>Makes variables of the selected rows; Return, a double click and dragging do so too.</source>
        <translation>Crée des variables à partir des lignes sélectionnées&#xa0;; Entrée, le double-clic et le glisser-déposer aussi.</translation>
    </message>
    <message>
        <source>Open a file for: %1</source>
        <translation>Ouvrir un fichier pour&#xa0;: %1</translation>
    </message>
    <message>
        <source>Filter of: %1</source>
        <translation>Filtre de&#xa0;: %1</translation>
    </message>
    <message>
        <source>Add the selected rows to the table of variables</source>
        <translation>Ajouter les lignes sélectionnées au tableau des variables</translation>
    </message>
    <message>
        <source>%L1 of %L2</source>
        <translation>%L1 sur %L2</translation>
    </message>
    <message>
        <source>No row matches the filter.</source>
        <translation>Aucune ligne ne correspond au filtre.</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtrer</translation>
    </message>
</context>
<context>
    <name>tessel::editor::SourcesPane</name>
    <message>
        <source>Sources of variables</source>
        <translation>Sources de variables</translation>
    </message>
    <message>
        <source>Kind of source</source>
        <translation>Type de source</translation>
    </message>
    <message>
        <source>CSV</source>
        <translation>CSV</translation>
    </message>
    <message>
        <source>Dataset</source>
        <translation>Jeu de données</translation>
    </message>
    <message>
        <source>Lookups</source>
        <translation>Tables de référence</translation>
    </message>
</context>
<context>
    <name>tessel::editor::StartPage</name>
    <message>
        <source>Describe a census or a survey</source>
        <translation>Décrire un recensement ou une enquête</translation>
    </message>
    <message>
        <source>A dictionary holds the entities, their variables and value labels.</source>
        <translation>Un dictionnaire contient les entités, leurs variables et leurs libellés de valeur.</translation>
    </message>
    <message>
        <source>&amp;New dictionary</source>
        <translation>&amp;Nouveau dictionnaire</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>&amp;Ouvrir…</translation>
    </message>
    <message>
        <source>Look at the &amp;sample census</source>
        <translation>Voir le recensement d&apos;e&amp;xemple</translation>
    </message>
    <message>
        <source>Recent files</source>
        <translation>Fichiers récents</translation>
    </message>
    <message>
        <source>%1  —  %2</source>
        <translation>%1  —  %2</translation>
    </message>
    <message>
        <source>Re&amp;cent files</source>
        <translation>Fichiers &amp;récents</translation>
    </message>
</context>
<context>
    <name>tessel::editor::Structure</name>
    <message>
        <source>add %1</source>
        <translation>ajout de %1</translation>
    </message>
    <message>
        <source>delete %1</source>
        <translation>suppression de %1</translation>
    </message>
    <message>
        <source>move %1</source>
        <translation>déplacement de %1</translation>
    </message>
    <message numerus="yes">
        <source>delete %n variables</source>
        <translation>
            <numerusform>suppression de %n variable</numerusform>
            <numerusform>suppression de %n variables</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>move %n variables</source>
        <translation>
            <numerusform>déplacement de %n variable</numerusform>
            <numerusform>déplacement de %n variables</numerusform>
        </translation>
    </message>
    <message>
        <source>add label %1 to %2</source>
        <translation>ajout du libellé %1 à %2</translation>
    </message>
    <message>
        <source>delete labels of %1</source>
        <translation>suppression de libellés de %1</translation>
    </message>
    <message>
        <source>move labels of %1</source>
        <translation>déplacement de libellés de %1</translation>
    </message>
    <message numerus="yes">
        <source>paste %n labels</source>
        <translation>
            <numerusform>collage de %n libellé</numerusform>
            <numerusform>collage de %n libellés</numerusform>
        </translation>
    </message>
    <message>
        <source>copy labels of %1</source>
        <translation>copie des libellés de %1</translation>
    </message>
    <message>
        <source>add range to %1</source>
        <translation>ajout d&apos;une plage à %1</translation>
    </message>
    <message>
        <source>delete ranges of %1</source>
        <translation>suppression de plages de %1</translation>
    </message>
    <message>
        <source>move ranges of %1</source>
        <translation>déplacement de plages de %1</translation>
    </message>
</context>
<context>
    <name>tessel::editor::SummaryPage</name>
    <message>
        <source>Kept, though the dictionary does not have them:</source>
        <translation>Conservés, bien qu&apos;absents du dictionnaire&#xa0;:</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Résumé</translation>
    </message>
    <message>
        <source>What Finish writes.</source>
        <translation>Ce qui est écrit lorsque vous terminez.</translation>
    </message>
    <message>
        <source>Entities of the run</source>
        <translation>Entités du traitement</translation>
    </message>
    <message>
        <source>Entity</source>
        <translation>Entité</translation>
    </message>
    <message>
        <source>Variables</source>
        <translation>Variables</translation>
    </message>
    <message>
        <source>Record type</source>
        <translation>Type d&apos;enregistrement</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Options</translation>
    </message>
    <message>
        <source>Names that the dictionary does not have</source>
        <translation>Noms absents du dictionnaire</translation>
    </message>
    <message>
        <source>The dictionary has been edited since this window was opened; the run is planned on what it held then.</source>
        <translation>Le dictionnaire a été modifié depuis l&apos;ouverture de cette fenêtre&#xa0;; le traitement est préparé sur ce qu&apos;il contenait alors.</translation>
    </message>
    <message>
        <source>Compound</source>
        <translation>Composé</translation>
    </message>
    <message>
        <source>SDC</source>
        <translation>SDC</translation>
    </message>
    <message>
        <source>Check sequence</source>
        <translation>Vérifier la séquence</translation>
    </message>
    <message>
        <source>not in the dictionary</source>
        <translation>absente du dictionnaire</translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>The run &quot;%1&quot; takes %2 and %3.</source>
        <translation>Le traitement «&#xa0;%1&#xa0;» comprend %2 et %3.</translation>
    </message>
    <message>
        <source>The run is written to a file that you are asked for.</source>
        <translation>Le traitement est écrit dans un fichier qui vous sera demandé.</translation>
    </message>
    <message>
        <source>The run is written to %1.</source>
        <translation>Le traitement est écrit dans %1.</translation>
    </message>
</context>
<context>
    <name>tessel::editor::TablePane</name>
    <message>
        <source>The table is sorted; choose View, Order of the dictionary to move rows.</source>
        <translation>Le tableau est trié&#xa0;; pour déplacer des lignes, choisissez Affichage, Ordre du dictionnaire.</translation>
    </message>
</context>
<context>
    <name>tessel::editor::TableView</name>
    <message>
        <source>Nothing matches the search. Esc clears it.</source>
        <translation>Rien ne correspond à la recherche. Échap l&apos;efface.</translation>
    </message>
</context>
<context>
    <name>tessel::editor::VariableForm</name>
    <message>
        <source>&amp;Type</source>
        <translation>T&amp;ype</translation>
    </message>
    <message>
        <source>Si&amp;ze</source>
        <translation>Ta&amp;ille</translation>
    </message>
    <message>
        <source>&amp;Missing</source>
        <translation>Man&amp;quant</translation>
    </message>
    <message>
        <source>&amp;Start</source>
        <translation>Dé&amp;but</translation>
    </message>
    <message>
        <source>&amp;Length</source>
        <translation>Long&amp;ueur</translation>
    </message>
    <message>
        <source>De&amp;cimals</source>
        <translation>Décimale&amp;s</translation>
    </message>
    <message>
        <source>Not &amp;applicable</source>
        <translation>N&amp;on applicable</translation>
    </message>
    <message>
        <source>Rec&amp;ord</source>
        <translation>En&amp;registrement</translation>
    </message>
    <message>
        <source>F&amp;ield</source>
        <translation>C&amp;hamp</translation>
    </message>
    <message>
        <source>Doc&amp;umentation</source>
        <translation>Docu&amp;mentation</translation>
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
        <translation>Rechercher des variables</translation>
    </message>
    <message>
        <source>Choose an entity to see its variables.</source>
        <translation>Choisissez une entité pour voir ses variables.</translation>
    </message>
    <message>
        <source>No variables yet. Drag fields from Sources, or press Ins.</source>
        <translation>Pas encore de variables. Faites glisser des champs depuis Sources ou appuyez sur Inser.</translation>
    </message>
    <message>
        <source>change %1 of %2</source>
        <translation>modification de «&#xa0;%1&#xa0;» dans %2</translation>
    </message>
    <message>
        <source>Delete variables</source>
        <translation>Supprimer des variables</translation>
    </message>
    <message numerus="yes">
        <source>%n of the variables have value labels or ranges, which go with them. Delete?</source>
        <translation>
            <numerusform>%n des variables a des libellés de valeur ou des plages, qui disparaissent avec elle. Supprimer&#xa0;?</numerusform>
            <numerusform>%n des variables ont des libellés de valeur ou des plages, qui disparaissent avec elles. Supprimer&#xa0;?</numerusform>
        </translation>
    </message>
    <message>
        <source>Choose the entity that is to have the fields first.</source>
        <translation>Choisissez d&apos;abord l&apos;entité qui doit recevoir les champs.</translation>
    </message>
    <message>
        <source>add fields to %1</source>
        <translation>ajout de champs à %1</translation>
    </message>
    <message>
        <source>No field was added.</source>
        <translation>Aucun champ n&apos;a été ajouté.</translation>
    </message>
    <message numerus="yes">
        <source>%n variables added to %1.</source>
        <translation>
            <numerusform>%n variable ajoutée à %1.</numerusform>
            <numerusform>%n variables ajoutées à %1.</numerusform>
        </translation>
    </message>
    <message>
        <source>rename %1</source>
        <translation>renommage de %1</translation>
    </message>
    <message>
        <source>a tag is a whole number</source>
        <translation>un Tag est un nombre entier</translation>
    </message>
    <message numerus="yes">
        <source>%n lookups were not added: %1 is not selectable. Mark it as selectable, or choose another entity.</source>
        <translation>
            <numerusform>%n table de référence n&apos;a pas été ajoutée&#xa0;: %1 n&apos;est pas sélectionnable. Marquez cette entité comme sélectionnable ou choisissez-en une autre.</numerusform>
            <numerusform>%n tables de référence n&apos;ont pas été ajoutées&#xa0;: %1 n&apos;est pas sélectionnable. Marquez cette entité comme sélectionnable ou choisissez-en une autre.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tessel::editor::VariablesPage</name>
    <message>
        <source>All &amp;variables of this entity</source>
        <translation>Toutes les &amp;variables de cette entité</translation>
    </message>
    <message>
        <source>&amp;All</source>
        <translation>To&amp;utes</translation>
    </message>
    <message>
        <source>Tick all variables that are shown</source>
        <translation>Cocher toutes les variables affichées</translation>
    </message>
    <message>
        <source>N&amp;one</source>
        <translation>&amp;Aucune</translation>
    </message>
    <message>
        <source>Untick all variables that are shown</source>
        <translation>Décocher toutes les variables affichées</translation>
    </message>
    <message>
        <source>&amp;Invert</source>
        <translation>&amp;Inverser</translation>
    </message>
    <message>
        <source>Turn the ticks that are shown over</source>
        <translation>Inverser les coches affichées</translation>
    </message>
    <message>
        <source>Variables</source>
        <translation>Variables</translation>
    </message>
    <message>
        <source>Which variables of each entity are taken. Those that hold its code, label and weight need not be chosen.</source>
        <translation>Quelles variables de chaque entité sont retenues. Celles qui contiennent son code, son libellé et sa pondération n&apos;ont pas à être choisies.</translation>
    </message>
    <message>
        <source>Ticked entities</source>
        <translation>Entités cochées</translation>
    </message>
    <message>
        <source>All variables of this entity</source>
        <translation>Toutes les variables de cette entité</translation>
    </message>
    <message>
        <source>Takes every variable, also those that the dictionary gets later.</source>
        <translation>Retient toutes les variables, y compris celles ajoutées plus tard au dictionnaire.</translation>
    </message>
    <message>
        <source>Search variables</source>
        <translation>Rechercher des variables</translation>
    </message>
    <message>
        <source>Variables of the entity</source>
        <translation>Variables de l&apos;entité</translation>
    </message>
    <message>
        <source>&amp;Entity:</source>
        <translation>&amp;Entité&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Search:</source>
        <translation>Re&amp;chercher&#xa0;:</translation>
    </message>
    <message>
        <source>%1 (all)</source>
        <translation>%1 (toutes)</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>%1, not a valid pattern</source>
        <translation>%1, motif non valide</translation>
    </message>
    <message>
        <source>Search name, label, alias, group…</source>
        <translation>Rechercher nom, libellé, alias, groupe…</translation>
    </message>
</context>
<context>
    <name>tessel::editor::WizardText</name>
    <message>
        <source>1 entity</source>
        <translation>1 entité</translation>
    </message>
    <message numerus="yes">
        <source>%n entities</source>
        <translation>
            <numerusform>%n entité</numerusform>
            <numerusform>%n entités</numerusform>
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
        <translation>%1 sur %2</translation>
    </message>
</context>
<context>
    <name>tessel::sources</name>
    <message>
        <source>cannot be read: it is a folder; name a file</source>
        <translation>ne peut pas être lu&#xa0;: c&apos;est un dossier&#xa0;; indiquez un fichier</translation>
    </message>
    <message>
        <source>cannot be read: it is no regular file; save its content in a file and name that</source>
        <translation>ne peut pas être lu&#xa0;: ce n&apos;est pas un fichier ordinaire&#xa0;; enregistrez son contenu dans un fichier et indiquez celui-ci</translation>
    </message>
    <message>
        <source>cannot be read: %1</source>
        <translation>ne peut pas être lu&#xa0;: %1</translation>
    </message>
    <message>
        <source>is empty; expected a file with data</source>
        <translation>est vide&#xa0;; un fichier contenant des données était attendu</translation>
    </message>
    <message>
        <source>a text file</source>
        <translation>un fichier texte</translation>
    </message>
    <message>
        <source>an SPSS file</source>
        <translation>un fichier SPSS</translation>
    </message>
    <message>
        <source>an encrypted SPSS file</source>
        <translation>un fichier SPSS chiffré</translation>
    </message>
    <message>
        <source>an SPSS portable file</source>
        <translation>un fichier portable SPSS</translation>
    </message>
    <message>
        <source>a Stata file</source>
        <translation>un fichier Stata</translation>
    </message>
    <message>
        <source>a SAS file</source>
        <translation>un fichier SAS</translation>
    </message>
    <message>
        <source>a SAS catalogue</source>
        <translation>un catalogue SAS</translation>
    </message>
    <message>
        <source>a SAS transport file</source>
        <translation>un fichier de transport SAS</translation>
    </message>
    <message>
        <source>a file of an unknown kind</source>
        <translation>un fichier de type inconnu</translation>
    </message>
</context>
<context>
    <name>tessel::sources::CategoriesText</name>
    <message numerus="yes">
        <source>%n empty codes are left out with their labels, because a category needs a code</source>
        <translation>
            <numerusform>%n code vide est laissé de côté avec son libellé, car une catégorie doit avoir un code</numerusform>
            <numerusform>%n codes vides sont laissés de côté avec leurs libellés, car une catégorie doit avoir un code</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n codes are left out, because a category&apos;s code cannot hold a blank: %1</source>
        <translation>
            <numerusform>%n code est laissé de côté, car le code d&apos;une catégorie ne peut pas contenir d&apos;espace&#xa0;: %1</numerusform>
            <numerusform>%n codes sont laissés de côté, car le code d&apos;une catégorie ne peut pas contenir d&apos;espace&#xa0;: %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>tabs and line ends in %n labels became blanks</source>
        <translation>
            <numerusform>les tabulations et les fins de ligne de %n libellé ont été remplacées par des espaces</numerusform>
            <numerusform>les tabulations et les fins de ligne de %n libellés ont été remplacées par des espaces</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tessel::sources::CodeTexts</name>
    <message>
        <source>as the source declares, the missing code is %1 instead of %2 and the not-applicable code is %3 instead of %4</source>
        <translation>comme la source le déclare, le code manquant est %1 au lieu de %2 et le code non applicable est %3 au lieu de %4</translation>
    </message>
    <message>
        <source>as the source declares, the missing code is %1 instead of %2</source>
        <translation>comme la source le déclare, le code manquant est %1 au lieu de %2</translation>
    </message>
    <message>
        <source>as the source declares, the not-applicable code is %1 instead of %2</source>
        <translation>comme la source le déclare, le code non applicable est %1 au lieu de %2</translation>
    </message>
</context>
<context>
    <name>tessel::sources::Completeness</name>
    <message>
        <source>does not hold the value labels &quot;%1&quot; of the variable %2: it was cut off or saved without them; get the whole file</source>
        <translation>ne contient pas les libellés de valeur «&#xa0;%1&#xa0;» de la variable %2&#xa0;: il a été tronqué ou enregistré sans eux&#xa0;; procurez-vous le fichier complet</translation>
    </message>
    <message>
        <source>ends too early: it was cut off; get the whole file</source>
        <translation>se termine trop tôt&#xa0;: il a été tronqué&#xa0;; procurez-vous le fichier complet</translation>
    </message>
</context>
<context>
    <name>tessel::sources::CsvCells</name>
    <message>
        <source>The file is marked as UTF-8 but holds other bytes; it was read as Windows-1252.</source>
        <translation>Le fichier est marqué comme UTF-8 mais contient d&apos;autres octets&#xa0;; il a été lu en Windows-1252.</translation>
    </message>
    <message>
        <source>1 cell is not in UTF-8 as others are; it was read as Windows-1252.</source>
        <translation>1 cellule n&apos;est pas en UTF-8 comme les autres&#xa0;; elle a été lue en Windows-1252.</translation>
    </message>
    <message numerus="yes">
        <source>%n cells are not in UTF-8 as others are; they were read as Windows-1252.</source>
        <translation>
            <numerusform>%n cellule n&apos;est pas en UTF-8 comme les autres&#xa0;; elle a été lue en Windows-1252.</numerusform>
            <numerusform>%n cellules ne sont pas en UTF-8 comme les autres&#xa0;; elles ont été lues en Windows-1252.</numerusform>
        </translation>
    </message>
    <message>
        <source>1 cell holds what is no text in %1; choose another encoding if it matters.</source>
        <translation>1 cellule contient autre chose que du texte en %1&#xa0;; choisissez un autre codage si cela importe.</translation>
    </message>
    <message numerus="yes">
        <source>%n cells hold what is no text in %1; choose another encoding if it matters.</source>
        <translation>
            <numerusform>%n cellule contient autre chose que du texte en %1&#xa0;; choisissez un autre codage si cela importe.</numerusform>
            <numerusform>%n cellules contiennent autre chose que du texte en %1&#xa0;; choisissez un autre codage si cela importe.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tessel::sources::CsvColumn</name>
    <message>
        <source>No value was found; the type STRING is a guess.</source>
        <translation>Aucune valeur n&apos;a été trouvée&#xa0;; le type STRING est une supposition.</translation>
    </message>
    <message>
        <source>Its numbers have a decimal comma; they were read as if it were a point.</source>
        <translation>Ses nombres ont une virgule décimale&#xa0;; ils ont été lus comme si c&apos;était un point.</translation>
    </message>
    <message>
        <source>1 value holds blanks and is no category: a code cannot hold them.</source>
        <translation>1 valeur contient des espaces et n&apos;est pas une catégorie&#xa0;: un code ne peut pas en contenir.</translation>
    </message>
    <message numerus="yes">
        <source>%n values hold blanks and are no categories: a code cannot hold them.</source>
        <translation>
            <numerusform>%n valeur contient des espaces et n&apos;est pas une catégorie&#xa0;: un code ne peut pas en contenir.</numerusform>
            <numerusform>%n valeurs contiennent des espaces et ne sont pas des catégories&#xa0;: un code ne peut pas en contenir.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tessel::sources::CsvColumns</name>
    <message>
        <source>1 record, in line %1, has more or fewer cells than the header has fields.</source>
        <translation>1 enregistrement, à la ligne %1, a plus ou moins de cellules que l&apos;en-tête n&apos;a de champs.</translation>
    </message>
    <message numerus="yes">
        <source>%n records have more or fewer cells than the header has fields, the first of them in line %1.</source>
        <translation>
            <numerusform>%n enregistrement a plus ou moins de cellules que l&apos;en-tête n&apos;a de champs&#xa0;; il se trouve à la ligne %1.</numerusform>
            <numerusform>%n enregistrements ont plus ou moins de cellules que l&apos;en-tête n&apos;a de champs&#xa0;; le premier se trouve à la ligne %1.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tessel::sources::CsvHeader</name>
    <message numerus="yes">
        <source>%1 and %n more</source>
        <translation>
            <numerusform>%1 et %n autre</numerusform>
            <numerusform>%1 et %n autres</numerusform>
        </translation>
    </message>
    <message>
        <source>1 field has no name and is called %1.</source>
        <translation>1 champ n&apos;a pas de nom et s&apos;appelle %1.</translation>
    </message>
    <message numerus="yes">
        <source>%n fields have no name and are called %1.</source>
        <translation>
            <numerusform>%n champ n&apos;a pas de nom et s&apos;appelle %1.</numerusform>
            <numerusform>%n champs n&apos;ont pas de nom et s&apos;appellent %1.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n fields have the name %1.</source>
        <translation>
            <numerusform>%n champ porte le nom %1.</numerusform>
            <numerusform>%n champs portent le nom %1.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n names belong to more than one field: %1.</source>
        <translation>
            <numerusform>%n nom est porté par plusieurs champs&#xa0;: %1.</numerusform>
            <numerusform>%n noms sont portés par plusieurs champs&#xa0;: %1.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tessel::sources::CsvReader</name>
    <message>
        <source>ends in the middle of a character; it may have been cut off</source>
        <translation>s&apos;arrête au milieu d&apos;un caractère&#xa0;; il a peut-être été tronqué</translation>
    </message>
    <message>
        <source>is no text file: it holds zero bytes; expected a CSV file in UTF-8, in UTF-16 with a byte-order mark or in Windows-1252</source>
        <translation>n&apos;est pas un fichier texte&#xa0;: il contient des octets nuls&#xa0;; un fichier CSV en UTF-8, en UTF-16 avec marque d&apos;ordre des octets ou en Windows-1252 était attendu</translation>
    </message>
    <message>
        <source>has no end of its header within %1 MiB; close its quotation marks, or choose another file</source>
        <translation>n&apos;a pas de fin d&apos;en-tête dans les premiers %1 Mio&#xa0;; refermez les guillemets ou choisissez un autre fichier</translation>
    </message>
    <message>
        <source>has more than %1 fields in its first line; expected fewer</source>
        <translation>contient plus de %1 champs à la première ligne&#xa0;; un nombre inférieur était attendu</translation>
    </message>
    <message>
        <source>has names of fields that are no text in %1; choose another encoding</source>
        <translation>contient des noms de champs qui ne sont pas du texte en %1&#xa0;; choisissez un autre codage</translation>
    </message>
    <message>
        <source>The names stand in line %1, below empty lines.</source>
        <translation>Les noms se trouvent à la ligne %1, sous des lignes vides.</translation>
    </message>
    <message>
        <source>has a quotation mark in field %1 of its header that is never closed; close it in the file, or choose another separator</source>
        <translation>contient dans le champ %1 de son en-tête un guillemet jamais refermé&#xa0;; refermez-le dans le fichier ou choisissez un autre séparateur</translation>
    </message>
    <message>
        <source>is empty; expected the names of fields in its first line</source>
        <translation>est vide&#xa0;; les noms des champs étaient attendus à la première ligne</translation>
    </message>
    <message>
        <source>has a record of more than %1 MiB, which begins in line %2; close its quotation marks, or choose another separator</source>
        <translation>contient un enregistrement de plus de %1 Mio, qui commence à la ligne %2&#xa0;; refermez les guillemets ou choisissez un autre séparateur</translation>
    </message>
    <message>
        <source>The record that begins in line %1 has a quotation mark that is never closed; it was left out.</source>
        <translation>L&apos;enregistrement qui commence à la ligne %1 contient un guillemet jamais refermé&#xa0;; il a été laissé de côté.</translation>
    </message>
    <message>
        <source>The file ends in the middle of a character; it may have been cut off.</source>
        <translation>Le fichier s&apos;arrête au milieu d&apos;un caractère&#xa0;; il a peut-être été tronqué.</translation>
    </message>
    <message>
        <source>cannot be taken apart at the separator %1; choose a comma, a semicolon, a tab or a bar</source>
        <translation>ne peut pas être découpé au séparateur %1&#xa0;; choisissez une virgule, un point-virgule, une tabulation ou une barre verticale</translation>
    </message>
    <message>
        <source>cannot be read in %1, which is no known encoding; choose another</source>
        <translation>ne peut pas être lu en %1, qui n&apos;est pas un codage connu&#xa0;; choisissez-en un autre</translation>
    </message>
    <message>
        <source>cannot be read: %1</source>
        <translation>ne peut pas être lu&#xa0;: %1</translation>
    </message>
    <message>
        <source>cannot be read: it is a folder; choose a file</source>
        <translation>ne peut pas être lu&#xa0;: c&apos;est un dossier&#xa0;; choisissez un fichier</translation>
    </message>
</context>
<context>
    <name>tessel::sources::FieldMaker</name>
    <message>
        <source>texts of more than %1 characters were cut there</source>
        <translation>les textes de plus de %1 caractères ont été coupés à cette longueur</translation>
    </message>
    <message>
        <source>the value labels of the format %1 are not in the catalogue</source>
        <translation>les libellés de valeur du format %1 ne sont pas dans le catalogue</translation>
    </message>
    <message>
        <source>is a date of the format %1 and stays a number</source>
        <translation>est une date au format %1 et reste un nombre</translation>
    </message>
    <message>
        <source>is a text of any length, for which no size is declared</source>
        <translation>est un texte de longueur quelconque, pour lequel aucune taille n&apos;est déclarée</translation>
    </message>
    <message numerus="yes">
        <source>%n missing codes are left out with their labels, because a category&apos;s code is a number or a text: %1</source>
        <translation>
            <numerusform>%n code manquant est laissé de côté avec son libellé, car le code d&apos;une catégorie est un nombre ou un texte&#xa0;: %1</numerusform>
            <numerusform>%n codes manquants sont laissés de côté avec leurs libellés, car le code d&apos;une catégorie est un nombre ou un texte&#xa0;: %1</numerusform>
        </translation>
    </message>
    <message>
        <source>the range from %1 to %2 is left out: a field carries whole numbers from %3 to %4</source>
        <translation>la plage de %1 à %2 est laissée de côté&#xa0;: un champ n&apos;admet que des nombres entiers de %3 à %4</translation>
    </message>
    <message>
        <source>the value labels &quot;%1&quot; are not in the file</source>
        <translation>les libellés de valeur « %1 » ne sont pas dans le fichier</translation>
    </message>
</context>
<context>
    <name>tessel::sources::MissingCodes</name>
    <message numerus="yes">
        <source>%n missing codes are left out, because a field carries whole numbers: %1</source>
        <translation>
            <numerusform>%n code manquant est laissé de côté, car un champ n&apos;admet que des nombres entiers&#xa0;: %1</numerusform>
            <numerusform>%n codes manquants sont laissés de côté, car un champ n&apos;admet que des nombres entiers&#xa0;: %1</numerusform>
        </translation>
    </message>
    <message>
        <source>the missing code %1 is left out: a field carries whole numbers from %2 to %3</source>
        <translation>le code manquant %1 est laissé de côté&#xa0;: un champ n&apos;admet que des nombres entiers de %2 à %3</translation>
    </message>
    <message>
        <source>the missing values up to %1 are left out: a field carries single codes</source>
        <translation>les valeurs manquantes jusqu&apos;à %1 sont laissées de côté&#xa0;: un champ n&apos;admet que des codes isolés</translation>
    </message>
    <message>
        <source>the missing values from %1 up are left out: a field carries single codes</source>
        <translation>les valeurs manquantes à partir de %1 sont laissées de côté&#xa0;: un champ n&apos;admet que des codes isolés</translation>
    </message>
    <message>
        <source>the missing values from %1 to %2 are left out: a field carries single codes</source>
        <translation>les valeurs manquantes de %1 à %2 sont laissées de côté&#xa0;: un champ n&apos;admet que des codes isolés</translation>
    </message>
    <message numerus="yes">
        <source>%n missing codes are left out, because a field carries two: %1</source>
        <translation>
            <numerusform>%n code manquant est laissé de côté, car un champ n&apos;en admet que deux&#xa0;: %1</numerusform>
            <numerusform>%n codes manquants sont laissés de côté, car un champ n&apos;en admet que deux&#xa0;: %1</numerusform>
        </translation>
    </message>
    <message>
        <source>the missing values up to %1 are left out but for whole numbers with labels: a field carries single codes</source>
        <translation>les valeurs manquantes jusqu&apos;à %1 sont laissées de côté, sauf les nombres entiers qui ont un libellé : un champ ne porte que des codes isolés</translation>
    </message>
    <message>
        <source>the missing values from %1 up are left out but for whole numbers with labels: a field carries single codes</source>
        <translation>les valeurs manquantes à partir de %1 sont laissées de côté, sauf les nombres entiers qui ont un libellé : un champ ne porte que des codes isolés</translation>
    </message>
    <message>
        <source>the missing values from %1 to %2 are left out but for whole numbers with labels: a field carries single codes</source>
        <translation>les valeurs manquantes de %1 à %2 sont laissées de côté, sauf les nombres entiers qui ont un libellé : un champ ne porte que des codes isolés</translation>
    </message>
</context>
<context>
    <name>tessel::sources::SasCatalogue</name>
    <message>
        <source>its catalogue %1 %2</source>
        <translation>son catalogue %1 %2</translation>
    </message>
    <message>
        <source>There are no value labels: the catalogue %1 %2.</source>
        <translation>Il n&apos;y a pas de libellés de valeur&#xa0;: le catalogue %1 %2.</translation>
    </message>
    <message numerus="yes">
        <source>The value labels of %n formats stand in a catalogue (.sas7bcat) that was not found; name it, or put it beside the file under the same name: %1.</source>
        <translation>
            <numerusform>Les libellés de valeur de %n format (%1) se trouvent dans un catalogue (.sas7bcat) introuvable&#xa0;; indiquez-le ou placez-le à côté du fichier sous le même nom.</numerusform>
            <numerusform>Les libellés de valeur de %n formats (%1) se trouvent dans un catalogue (.sas7bcat) introuvable&#xa0;; indiquez-le ou placez-le à côté du fichier sous le même nom.</numerusform>
        </translation>
    </message>
    <message>
        <source>is no SAS catalogue by its content</source>
        <translation>n&apos;est pas, d&apos;après son contenu, un catalogue SAS</translation>
    </message>
    <message>
        <source>is damaged and cannot be read</source>
        <translation>est endommagé et ne peut pas être lu</translation>
    </message>
</context>
<context>
    <name>tessel::sources::SourceReader</name>
    <message>
        <source>is encrypted; save it without a password</source>
        <translation>est chiffré&#xa0;; enregistrez-le sans mot de passe</translation>
    </message>
    <message>
        <source>is a SAS catalogue, which holds value labels and no fields; open the .sas7bdat file that it belongs to</source>
        <translation>est un catalogue SAS, qui contient des libellés de valeur et aucun champ&#xa0;; ouvrez le fichier .sas7bdat auquel il appartient</translation>
    </message>
    <message>
        <source>is of a kind that cannot be read; expected a file whose name ends in .%1</source>
        <translation>est d&apos;un type qui ne peut pas être lu&#xa0;; un fichier dont le nom se termine par .%1 était attendu</translation>
    </message>
    <message>
        <source>is not %1 by its content, though its name ends in .%2; it is damaged or of another kind</source>
        <translation>n&apos;est pas, d&apos;après son contenu, %1, bien que son nom se termine par .%2&#xa0;; il est endommagé ou d&apos;un autre type</translation>
    </message>
    <message>
        <source>is %1 by its content, though its name ends in .%2; rename it to end in .%3</source>
        <translation>est, d&apos;après son contenu, %1, bien que son nom se termine par .%2&#xa0;; renommez-le pour que son nom se termine par .%3</translation>
    </message>
</context>
<context>
    <name>tessel::sources::StatisticalProblem</name>
    <message>
        <source>cannot be read: %1</source>
        <translation>ne peut pas être lu&#xa0;: %1</translation>
    </message>
    <message>
        <source>is of a version of its format that cannot be read; save it in another version</source>
        <translation>est dans une version de son format qui ne peut pas être lue&#xa0;; enregistrez-le dans une autre version</translation>
    </message>
    <message>
        <source>is compressed in a way that cannot be read; save it without compression</source>
        <translation>est compressé d&apos;une façon qui ne peut pas être lue&#xa0;; enregistrez-le sans compression</translation>
    </message>
    <message>
        <source>ends too early: it was cut off or is damaged; get the whole file</source>
        <translation>se termine trop tôt&#xa0;: il a été tronqué ou est endommagé&#xa0;; procurez-vous le fichier complet</translation>
    </message>
    <message>
        <source>is damaged: it declares something larger than can be; get the file again</source>
        <translation>est endommagé&#xa0;: il déclare quelque chose de plus grand que possible&#xa0;; procurez-vous de nouveau le fichier</translation>
    </message>
    <message>
        <source>is damaged and cannot be read; get the file again</source>
        <translation>est endommagé et ne peut pas être lu&#xa0;; procurez-vous de nouveau le fichier</translation>
    </message>
    <message>
        <source>holds texts that are not in the encoding %1; choose another one</source>
        <translation>contient des textes qui ne sont pas dans le codage %1&#xa0;; choisissez-en un autre</translation>
    </message>
    <message>
        <source>holds texts that are not in the encoding that it declares; choose the encoding</source>
        <translation>contient des textes qui ne sont pas dans le codage qu&apos;il déclare&#xa0;; choisissez le codage</translation>
    </message>
    <message>
        <source>holds texts that are not in the encoding %1, which it declares; choose another one</source>
        <translation>contient des textes qui ne sont pas dans le codage %1 qu&apos;il déclare&#xa0;; choisissez-en un autre</translation>
    </message>
    <message>
        <source>declares the encoding %1, which is not known; choose another one</source>
        <translation>déclare le codage %1, qui n&apos;est pas connu&#xa0;; choisissez-en un autre</translation>
    </message>
    <message>
        <source>cannot be read in the encoding %1, which is not known; choose another one</source>
        <translation>ne peut pas être lu dans le codage %1, qui n&apos;est pas connu&#xa0;; choisissez-en un autre</translation>
    </message>
</context>
<context>
    <name>tessel::sources::StatisticalReader</name>
    <message>
        <source>holds no variables; expected at least one</source>
        <translation>ne contient pas de variables&#xa0;; au moins une était attendue</translation>
    </message>
    <message>
        <source>Categories and ranges come from the first %1 records.</source>
        <translation>Les catégories et les plages proviennent des %1 premiers enregistrements.</translation>
    </message>
    <message>
        <source>Categories and ranges come from the first %1 of %2 records.</source>
        <translation>Les catégories et les plages proviennent des %1 premiers enregistrements sur %2.</translation>
    </message>
    <message>
        <source>The file holds more than one data set, of which only the first one is read; save each in a file of its own.</source>
        <translation>Le fichier contient plusieurs jeux de données, dont seul le premier est lu ; enregistrez chacun dans un fichier à part.</translation>
    </message>
    <message>
        <source>The title is not valid UTF-8 and was read as Windows-1252.</source>
        <translation>Le titre n&apos;est pas en UTF-8 valide et a été lu en Windows-1252.</translation>
    </message>
    <message numerus="yes">
        <source>Texts of %n fields are not valid UTF-8 and were read as Windows-1252: %1.</source>
        <translation>
            <numerusform>Les textes de %n champ ne sont pas en UTF-8 valide et ont été lus en Windows-1252 : %1.</numerusform>
            <numerusform>Les textes de %n champs ne sont pas en UTF-8 valide et ont été lus en Windows-1252 : %1.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tessel::sources::VariableMerge</name>
    <message>
        <source>an earlier field, %1, gives %2 a variable %3 too</source>
        <translation>un champ précédent, %1, donne aussi à %2 une variable %3</translation>
    </message>
    <message>
        <source>%1 has the variable %2 already, with the same alias, label and group</source>
        <translation>%1 a déjà la variable %2, avec les mêmes alias, libellé et groupe</translation>
    </message>
    <message>
        <source>%1 has a variable %2 already, with another alias, label or group</source>
        <translation>%1 a déjà une variable %2, avec un autre alias, un autre libellé ou un autre groupe</translation>
    </message>
    <message>
        <source>gives a variable without a name, because it begins with &quot;_&quot; and a digit; name the variable in the dictionary</source>
        <translation>donne une variable sans nom, parce qu&apos;il commence par « _ » et un chiffre ; nommez la variable dans le dictionnaire</translation>
    </message>
</context>
</TS>
