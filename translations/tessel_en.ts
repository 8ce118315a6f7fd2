<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>tessel::editor::CopyLabelsDialog</name>
    <message numerus="yes">
        <source>&amp;Variables that are to have the %n labels of %1 in place of their own:</source>
        <translation>
            <numerusform>&amp;Variables that are to have the %n label of %1 in place of their own:</numerusform>
            <numerusform>&amp;Variables that are to have the %n labels of %1 in place of their own:</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tessel::editor::CsvHeader</name>
    <message numerus="yes">
        <source>%1 and %n more</source>
        <translation>
            <numerusform>%1 and %n more</numerusform>
            <numerusform>%1 and %n more</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n fields have no name and are called %1.</source>
        <translation>
            <numerusform>%n field has no name and is called %1.</numerusform>
            <numerusform>%n fields have no name and are called %1.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n fields have the name %1.</source>
        <translation>
            <numerusform>%n field has the name %1.</numerusform>
            <numerusform>%n fields have the name %1.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n names belong to more than one field: %1.</source>
        <translation>
            <numerusform>%n name belongs to more than one field: %1.</numerusform>
            <numerusform>%n names belong to more than one field: %1.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tessel::editor::CsvSourceTab</name>
    <message numerus="yes">
        <source>%1: %n fields in %2.</source>
        <translation>
            <numerusform>%1: %n field in %2.</numerusform>
            <numerusform>%1: %n fields in %2.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tessel::editor::DatasetSourceTab</name>
    <message numerus="yes">
        <source>%1: %n fields.</source>
        <translation>
            <numerusform>%1: %n field.</numerusform>
            <numerusform>%1: %n fields.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tessel::editor::FileHandling</name>
    <message numerus="yes">
        <source>The opened file holds %n values that dictionaries do not keep. Save all the same?</source>
        <translation>
            <numerusform>The opened file holds %n value that dictionaries do not keep. Save all the same?</numerusform>
            <numerusform>The opened file holds %n values that dictionaries do not keep. Save all the same?</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tessel::editor::LabelPane</name>
    <message numerus="yes">
        <source>%n labels pasted.</source>
        <translation>
            <numerusform>%n label pasted.</numerusform>
            <numerusform>%n labels pasted.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n labels copied.</source>
        <translation>
            <numerusform>%n label copied.</numerusform>
            <numerusform>%n labels copied.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tessel::editor::LookupSourceTab</name>
    <message numerus="yes">
        <source>%1: %n lookups.</source>
        <translation>
            <numerusform>%1: %n lookup.</numerusform>
            <numerusform>%1: %n lookups.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tessel::editor::MainWindow</name>
    <message numerus="yes">
        <source>%n entities</source>
        <translation>
            <numerusform>%n entity</numerusform>
            <numerusform>%n entities</numerusform>
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
            <numerusform>%n label</numerusform>
            <numerusform>%n labels</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Saving would lose or change %n values that the file holds.</source>
        <translation>
            <numerusform>Saving would lose or change %n value that the file holds.</numerusform>
            <numerusform>Saving would lose or change %n values that the file holds.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n problems found.</source>
        <translation>
            <numerusform>%n problem found.</numerusform>
            <numerusform>%n problems found.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tessel::editor::Structure</name>
    <message numerus="yes">
        <source>delete %n variables</source>
        <translation>
            <numerusform>delete %n variable</numerusform>
            <numerusform>delete %n variables</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>move %n variables</source>
        <translation>
            <numerusform>move %n variable</numerusform>
            <numerusform>move %n variables</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>paste %n labels</source>
        <translation>
            <numerusform>paste %n label</numerusform>
            <numerusform>paste %n labels</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tessel::editor::VariablePane</name>
    <message numerus="yes">
        <source>%n of the variables have value labels or ranges, which go with them. Delete?</source>
        <translation>
            <numerusform>%n of the variables has value labels or ranges, which go with it. Delete?</numerusform>
            <numerusform>%n of the variables have value labels or ranges, which go with them. Delete?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n variables added to %1.</source>
        <translation>
            <numerusform>%n variable added to %1.</numerusform>
            <numerusform>%n variables added to %1.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tessel::editor::WizardText</name>
    <message numerus="yes">
        <source>%n entities</source>
        <translation>
            <numerusform>%n entity</numerusform>
            <numerusform>%n entities</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n variables</source>
        <translation>
            <numerusform>%n variable</numerusform>
            <numerusform>%n variables</numerusform>
        </translation>
    </message>
</context>
</TS>
