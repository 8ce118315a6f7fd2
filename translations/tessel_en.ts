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
    <message numerus="yes">
        <source>%n re&amp;marks…</source>
        <translation>
            <numerusform>%n re&amp;mark…</numerusform>
            <numerusform>%n re&amp;marks…</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tessel::editor::DeclaredCodesOffer</name>
    <message numerus="yes">
        <source>%n of the %1 new variables have missing or not-applicable codes declared in the file.</source>
        <translation>
            <numerusform>%n of the %1 new variables has missing or not-applicable codes declared in the file.</numerusform>
            <numerusform>%n of the %1 new variables have missing or not-applicable codes declared in the file.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n variables have the declared codes now.</source>
        <translation>
            <numerusform>%n variable has the declared codes now.</numerusform>
            <numerusform>%n variables have the declared codes now.</numerusform>
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
    <message numerus="yes">
        <source>%n lookups were not added: %1 is not selectable. Mark it as selectable, or choose another entity.</source>
        <translation>
            <numerusform>%n lookup was not added: %1 is not selectable. Mark it as selectable, or choose another entity.</numerusform>
            <numerusform>%n lookups were not added: %1 is not selectable. Mark it as selectable, or choose another entity.</numerusform>
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
<context>
    <name>tessel::sources::CategoriesText</name>
    <message numerus="yes">
        <source>%n empty codes are left out with their labels, because a category needs a code</source>
        <translation>
            <numerusform>%n empty code is left out with its label, because a category needs a code</numerusform>
            <numerusform>%n empty codes are left out with their labels, because a category needs a code</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n codes are left out, because a category&apos;s code cannot hold a blank: %1</source>
        <translation>
            <numerusform>%n code is left out, because a category&apos;s code cannot hold a blank: %1</numerusform>
            <numerusform>%n codes are left out, because a category&apos;s code cannot hold a blank: %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>tabs and line ends in %n labels became blanks</source>
        <translation>
            <numerusform>tabs and line ends in %n label became blanks</numerusform>
            <numerusform>tabs and line ends in %n labels became blanks</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tessel::sources::CsvCells</name>
    <message numerus="yes">
        <source>%n cells are not in UTF-8 as others are; they were read as Windows-1252.</source>
        <translation>
            <numerusform>%n cell is not in UTF-8 as others are; it was read as Windows-1252.</numerusform>
            <numerusform>%n cells are not in UTF-8 as others are; they were read as Windows-1252.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n cells hold what is no text in %1; choose another encoding if it matters.</source>
        <translation>
            <numerusform>%n cell holds what is no text in %1; choose another encoding if it matters.</numerusform>
            <numerusform>%n cells hold what is no text in %1; choose another encoding if it matters.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tessel::sources::CsvColumn</name>
    <message numerus="yes">
        <source>%n values hold blanks and are no categories: a code cannot hold them.</source>
        <translation>
            <numerusform>%n value holds blanks and is no category: a code cannot hold them.</numerusform>
            <numerusform>%n values hold blanks and are no categories: a code cannot hold them.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tessel::sources::CsvColumns</name>
    <message numerus="yes">
        <source>%n records have more or fewer cells than the header has fields, the first of them in line %1.</source>
        <translation>
            <numerusform>%n record has more or fewer cells than the header has fields; it is in line %1.</numerusform>
            <numerusform>%n records have more or fewer cells than the header has fields, the first of them in line %1.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tessel::sources::CsvHeader</name>
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
    <name>tessel::sources::FieldMaker</name>
    <message numerus="yes">
        <source>%n missing codes are left out with their labels, because a category&apos;s code is a number or a text: %1</source>
        <translation>
            <numerusform>%n missing code is left out with its label, because a category&apos;s code is a number or a text: %1</numerusform>
            <numerusform>%n missing codes are left out with their labels, because a category&apos;s code is a number or a text: %1</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tessel::sources::MissingCodes</name>
    <message numerus="yes">
        <source>%n missing codes are left out, because a field carries whole numbers: %1</source>
        <translation>
            <numerusform>%n missing code is left out, because a field carries whole numbers: %1</numerusform>
            <numerusform>%n missing codes are left out, because a field carries whole numbers: %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n missing codes are left out, because a field carries two: %1</source>
        <translation>
            <numerusform>%n missing code is left out, because a field carries two: %1</numerusform>
            <numerusform>%n missing codes are left out, because a field carries two: %1</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tessel::sources::SasCatalogue</name>
    <message numerus="yes">
        <source>The value labels of %n formats stand in a catalogue (.sas7bcat) that was not found; name it, or put it beside the file under the same name: %1.</source>
        <translation>
            <numerusform>The value labels of %n format stand in a catalogue (.sas7bcat) that was not found; name it, or put it beside the file under the same name: %1.</numerusform>
            <numerusform>The value labels of %n formats stand in a catalogue (.sas7bcat) that was not found; name it, or put it beside the file under the same name: %1.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tessel::sources::StatisticalReader</name>
    <message numerus="yes">
        <source>Texts of %n fields are not valid UTF-8 and were read as Windows-1252: %1.</source>
        <translation>
            <numerusform>Texts of %n field are not valid UTF-8 and were read as Windows-1252: %1.</numerusform>
            <numerusform>Texts of %n fields are not valid UTF-8 and were read as Windows-1252: %1.</numerusform>
        </translation>
    </message>
</context>
</TS>
