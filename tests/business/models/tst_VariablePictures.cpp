#include "business/models/VariableDiccionaryModel.h"

#include "model/MetadataVariables.h"
#include "tests/business/models/VariableTable.h"

#include <QIcon>
#include <QImage>
#include <QtTest>

using namespace tessel::test;

namespace {

// The form that a pixmap keeps on its own.
QImage pixels(const QImage &image) { return image.convertToFormat(QImage::Format_ARGB32_Premultiplied); }

QImage drawing(const QString &name)
{
    return pixels(QImage(QStringLiteral(TESSEL_SOURCE_DIR "/resources/icons/48px-%1.png").arg(name)));
}

const QStringList kPictures = {"Project-save", "Entity-code", "Entity-weight", "Entity-label",
    "Variable-string", "Variable-integer", "Variable-decimal", "Variable-bool", "Project-preferences"};

/// The name of the picture that the first variable has beside its name.
QString pictureOf(const QAbstractItemModel &model)
{
    const QVariant decoration = model.data(model.index(0, 0), Qt::DecorationRole);
    if (decoration.userType() != QMetaType::QIcon)
        return QStringLiteral("no icon");
    const QIcon icon = decoration.value<QIcon>();
    if (icon.availableSizes() != QList<QSize>({QSize(48, 48)}))
        return QStringLiteral("an icon of another size");
    const QImage shown = pixels(icon.pixmap(48, 48).toImage());
    QStringList names;
    for (const QString &name : kPictures) {
        if (drawing(name) == shown)
            names += name;
    }
    return names.join(QLatin1Char(' '));
}

} // namespace

class tst_VariablePictures : public QObject {
    Q_OBJECT

private slots:
    void thePicturesDiffer()
    {
        for (const QString &name : kPictures) {
            QCOMPARE(drawing(name).size(), QSize(48, 48));
            for (const QString &other : kPictures)
                QCOMPARE(drawing(name) == drawing(other), name == other);
        }
    }

    void thePictureIsThatOfTheFirstConditionThatHolds_data()
    {
        QTest::addColumn<QString>("type");
        QTest::addColumn<QString>("parts");
        QTest::addColumn<bool>("lookup");
        QTest::addColumn<QString>("picture");
        const auto row = [](const char *tag, const char *type, const char *parts, const char *picture) {
            QTest::newRow(tag) << QString::fromUtf8(type) << parts << false << picture;
        };
        for (const char *type : {"STRING", "INTEGER", "REAL", "BOOL", "DATE", ""})
            QTest::addRow("a lookup of type '%s', code, weight and label", type)
                << type << "code weight label" << true << "Project-save";
        QTest::newRow("a lookup without a part") << "STRING"
                                                 << "" << true << "Project-save";
        row("a string, code, weight and label", "STRING", "code weight label", "Entity-code");
        row("a string, code and label", "STRING", "code label", "Entity-code");
        row("a string, code and weight", "STRING", "code weight", "Entity-code");
        row("a string, the code", "STRING", "code", "Entity-code");
        row("a string, weight and label", "STRING", "weight label", "Entity-weight");
        row("a string, the weight", "STRING", "weight", "Entity-weight");
        row("a string, the label", "STRING", "label", "Entity-label");
        row("a string", "STRING", "", "Variable-string");
        row("an integer", "INTEGER", "", "Variable-integer");
        row("a number", "REAL", "", "Variable-decimal");
        row("a flag", "BOOL", "", "Variable-bool");
        row("another type", "DATE", "", "Project-preferences");
        row("no type", "", "", "Project-preferences");
        row("a weight that is an integer looks like an integer", "INTEGER", "weight", "Variable-integer");
        row("a weight that is a number looks like a number", "REAL", "weight", "Variable-decimal");
        row("a code that is an integer looks like an integer", "INTEGER", "code label", "Variable-integer");
        row("a flag in all parts", "BOOL", "code weight label", "Variable-bool");
        row("another type in all parts", "DATE", "code weight label", "Project-preferences");
        row("string in lower case", "string", "", "Variable-string");
        row("a code, string in mixed case with blanks", "\t String \n", "code", "Entity-code");
        row("bool in lower case", "bool", "", "Variable-bool");
        row("integer with blanks", " Integer ", "", "Variable-integer");
        row("real in mixed case", "rEaL\n", "", "Variable-decimal");
        row("a dotless i has an ordinary upper case", "\u0131nteger", "", "Variable-integer");
        row("a type with more letters", "STRINGS", "", "Project-preferences");
        row("a type with fewer letters", "INT", "", "Project-preferences");
        row("a blank inside the type", "STR ING", "code", "Project-preferences");
    }
    void thePictureIsThatOfTheFirstConditionThatHolds()
    {
        QFETCH(QString, type);
        QFETCH(QString, parts);
        QFETCH(bool, lookup);
        QFETCH(QString, picture);
        const VariableTable table = VariableTable::holding({newVariable("AGE"), newVariable("SEX")});
        table.variable(0)->setVarType(type);
        table.variable(0)->getMetadataVariables()->setLookup(lookup);
        table.house->setRefCode(parts.contains("code") ? "AGE" : "SEX");
        table.house->setWeightVariable(parts.contains("weight") ? "AGE" : "SEX");
        table.house->setRefLabel(parts.contains("label") ? "AGE" : "SEX");
        QCOMPARE(pictureOf(table.model), picture);
    }

    void namesOfPartsAreComparedTrimmedAndToTheLetter_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("reference");
        QTest::addColumn<bool>("same");
        QTest::newRow("blanks around the name") << " \tAGE\n"
                                                << "AGE" << true;
        QTest::newRow("blanks around the reference") << "AGE"
                                                     << "  AGE\t" << true;
        QTest::newRow("letter case counts") << "age"
                                            << "AGE" << false;
        QTest::newRow("a part of the name") << "AGES"
                                            << "AGE" << false;
        QTest::newRow("a pattern") << "AGE"
                                   << "A.E" << false;
        QTest::newRow("both empty are the same") << ""
                                                 << " " << true;
    }
    void namesOfPartsAreComparedTrimmedAndToTheLetter()
    {
        QFETCH(QString, name);
        QFETCH(QString, reference);
        QFETCH(bool, same);
        const VariableTable table = VariableTable::holding({namedVariable(name)});
        table.variable(0)->setVarType("STRING");
        const auto pictureWith = [&](const QString &code, const QString &weight, const QString &label) {
            table.house->setRefCode(code);
            table.house->setWeightVariable(weight);
            table.house->setRefLabel(label);
            return pictureOf(table.model);
        };
        const QString plain = "Variable-string";
        QCOMPARE(pictureWith(reference, "-", "-"), same ? "Entity-code" : plain);
        QCOMPARE(pictureWith("-", reference, "-"), same ? "Entity-weight" : plain);
        QCOMPARE(pictureWith("-", "-", reference), same ? "Entity-label" : plain);
    }

    void aPictureFollowsTheVariableAndTheEntityAtOnce()
    {
        const VariableTable table = VariableTable::holding({newVariable("AGE"), newVariable("SEX")});
        TDmVariable *variable = table.variable(0);
        QCOMPARE(pictureOf(table.model), QString("Project-preferences"));
        variable->setVarType("STRING");
        QCOMPARE(pictureOf(table.model), QString("Variable-string"));
        table.house->setRefLabel("OLD");
        QCOMPARE(pictureOf(table.model), QString("Variable-string"));
        variable->setName("OLD");
        QCOMPARE(pictureOf(table.model), QString("Entity-label"));
        variable->getMetadataVariables()->setLookup(true);
        QCOMPARE(pictureOf(table.model), QString("Project-save"));
    }

    void partsAreThoseOfTheShownEntityAndNotOfTheRoot()
    {
        const VariableTable table = VariableTable::holding({newVariable("AGE"), newVariable("SEX")});
        table.variable(0)->setVarType("STRING");
        table.root->setRefCode("AGE");
        table.house->setRefCode("SEX");
        QCOMPARE(pictureOf(table.model), QString("Variable-string"));
    }

    void aVariableWithoutLayoutIsNoLookup()
    {
        const VariableTable table = VariableTable::holding({newVariable("AGE"), newVariable("SEX")});
        table.variable(0)->setMetadataVariables(nullptr);
        table.variable(0)->setVarType("REAL");
        QCOMPARE(pictureOf(table.model), QString("Variable-decimal"));
    }
};

QTEST_MAIN(tst_VariablePictures)
#include "tst_VariablePictures.moc"
