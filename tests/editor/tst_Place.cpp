#include "editor/Place.h"

#include "tests/editor/SmallCensus.h"

#include "documents/DocumentForm.h"

#include <QJsonDocument>
#include <QtTest>

using namespace tessel;
using namespace tessel::test;

namespace {

/// "entity/variable/label/range", each by its name, code or minimum; "-" where the place has none.
QString shown(const editor::Place &place)
{
    const QString none = QStringLiteral("-");
    return QStringList{
        place.entity ? QLatin1Char('<') + place.entity->getName() + QLatin1Char('>') : none,
        place.variable ? place.variable->getName() : none,
        place.label ? place.label->getValue() : none,
        place.range ? QString::number(place.range->getRangeMin()) : none,
    }
        .join(QLatin1Char(' '));
}

} // namespace

class tst_Place : public QObject {
    Q_OBJECT

private slots:
    void aFreshPlaceIsNowhere() { QCOMPARE(shown(editor::Place()), QStringLiteral("- - - -")); }

    void aPathLeadsToItsPlace_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<QString>("place");
        const auto row = [](const char *tag, const char *path, const char *place) {
            QTest::newRow(tag) << QString::fromUtf8(path) << QString::fromUtf8(place);
        };
        row("no path is the dictionary itself", "", "<DICTIONARY> - - -");
        row("a key of the dictionary itself", "/name", "<DICTIONARY> - - -");
        row("a top entity", "/entities/0", "<HOUSE> - - -");
        row("a key of an entity", "/entities/0/codeVar", "<HOUSE> - - -");
        row("the first child", "/entities/0/entities/0", "<PERSON> - - -");
        row("the second child", "/entities/0/entities/1", "<DEATH> - - -");
        row("a list of entities", "/entities/0/entities", "<HOUSE> - - -");
        row("a variable", "/entities/0/entities/0/variables/1", "<PERSON> AGE - -");
        row("a list of variables", "/entities/0/variables", "<HOUSE> - - -");
        row("a variable's key", "/entities/0/variables/1/name", "<HOUSE> KIND - -");
        row("a variable of the dictionary itself", "/variables/0", "<DICTIONARY> YEAR - -");
        row("a label", "/entities/0/entities/0/variables/0/valueLabels/1", "<PERSON> SEX 2 -");
        row("a label's key", "/entities/0/entities/0/variables/0/valueLabels/1/label", "<PERSON> SEX 2 -");
        row("a list of labels", "/entities/0/entities/0/variables/0/valueLabels", "<PERSON> SEX - -");
        row("the first range", "/entities/0/entities/0/variables/1/metadata/range/0", "<PERSON> AGE - 0");
        row("the last range", "/entities/0/entities/0/variables/1/metadata/range/1", "<PERSON> AGE - 15");
        row("a range's key", "/entities/0/entities/0/variables/1/metadata/range/1/max", "<PERSON> AGE - 15");
        row("a list of ranges", "/entities/0/entities/0/variables/1/metadata/range", "<PERSON> AGE - -");
        row("a layout", "/entities/0/entities/0/variables/1/metadata", "<PERSON> AGE - -");
        row("a layout's key", "/entities/0/entities/0/variables/1/metadata/start", "<PERSON> AGE - -");
    }

    void aPathLeadsToItsPlace() { comparePlace(); }

    void aPathThatLeadsNowhereEndsWhereItStops_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<QString>("place");
        const auto row = [](const char *tag, const char *path, const char *place) {
            QTest::newRow(tag) << QString::fromUtf8(path) << QString::fromUtf8(place);
        };
        row("an entity behind the last", "/entities/0/entities/2", "<HOUSE> - - -");
        row("what stands below an entity that is missing", "/entities/0/entities/2/variables/0",
            "<HOUSE> - - -");
        row("an entity before the first", "/entities/-1", "<DICTIONARY> - - -");
        row("an entity that is no number", "/entities/x/variables/0", "<DICTIONARY> - - -");
        row("a variable behind the last", "/entities/0/variables/2", "<HOUSE> - - -");
        row("a label of a variable that is missing", "/entities/0/variables/2/valueLabels/0",
            "<HOUSE> - - -");
        row("a range of a variable that is missing", "/entities/0/variables/9/metadata/range/0",
            "<HOUSE> - - -");
        row("a label of an entity", "/entities/0/valueLabels/0", "<HOUSE> - - -");
        row("a range of an entity", "/entities/0/metadata/range/0", "<HOUSE> - - -");
        row("a label behind the last", "/entities/0/entities/0/variables/0/valueLabels/2",
            "<PERSON> SEX - -");
        row("a range behind the last", "/entities/0/entities/0/variables/1/metadata/range/2",
            "<PERSON> AGE - -");
        row("a label that is no number", "/entities/0/entities/0/variables/0/valueLabels/one",
            "<PERSON> SEX - -");
        row("a path without its slash", "entities/0", "<DICTIONARY> - - -");
        row("slashes alone", "////", "<DICTIONARY> - - -");
        row("layouts in a row", "/metadata/metadata/metadata", "<DICTIONARY> - - -");
        row("a key that nobody knows", "/strange/0/entities/0", "<HOUSE> - - -");
    }

    void aPathThatLeadsNowhereEndsWhereItStops() { comparePlace(); }

    void thePathsAreThoseOfTheNormalForm()
    {
        SmallCensus census;
        const QJsonObject root =
            QJsonDocument::fromJson(documents::dictionaryText(census.document.root())).object();
        const QJsonObject person =
            root[QStringLiteral("entities")][0][QStringLiteral("entities")][0].toObject();
        QCOMPARE(person[QStringLiteral("name")].toString(), QStringLiteral("PERSON"));
        const QJsonValue sex = person[QStringLiteral("variables")].toArray()[0];
        QCOMPARE(sex[QStringLiteral("valueLabels")][1][QStringLiteral("value")].toInt(), 2);
        QCOMPARE(
            sex[QStringLiteral("metadata")][QStringLiteral("range")][0][QStringLiteral("max")].toInt(), 2);
    }

private:
    static void comparePlace()
    {
        QFETCH(QString, path);
        SmallCensus census;
        SmallCensus::addVariable(census.document.root(), "YEAR");
        QTEST(shown(editor::placeAt(census.document.root(), path)), "place");
    }
};

QTEST_APPLESS_MAIN(tst_Place)
#include "tst_Place.moc"
