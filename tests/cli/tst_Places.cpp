#include "cli/Places.h"

#include "documents/DocumentForm.h"
#include "model/TDmEntity.h"
#include "model/TDmVariable.h"
#include "tests/support/Json.h"

#include <QtTest>

using namespace tessel::cli;

class tst_Places : public QObject {
    Q_OBJECT

private slots:
    void initTestCase()
    {
        root = tessel::documents::readDictionary(QJsonObject::fromVariantMap(tessel::test::objectOf(
            "{'name': 'R', 'variables': [{'name': 'V'}], 'entities': ["
            "{'name': 'A', 'variables': [{'name': 'V'}, {'name': 'W'}],"
            " 'entities': [{'name': 'B', 'variables': [{'name': 'V'}]}, {'name': 'A'}]},"
            "{'name': 'A/B'}, {'name': '', 'variables': [{'name': 'X'}]}, {'name': 'B', 'variables': "
            "[{'name': 'B'}]}]}")));
    }

    void allPlacesStandInDocumentOrder()
    {
        QStringList list;
        const QVector<Place> places = placesBelow(*root);
        for (const Place &place : places) {
            list.append(place.path + QLatin1Char(' ') + place.pointer);
            QVERIFY(place.entity);
            const QString name = place.variable ? place.variable->getName() : place.entity->getName();
            QVERIFY2(place.pointer.isEmpty() || place.path.endsWith(name), qPrintable(place.path));
            QCOMPARE(bool(place.variable),
                place.pointer.section(QLatin1Char('/'), -2, -2) == QLatin1String("variables"));
        }
        QCOMPARE(list,
            (QStringList{QStringLiteral(" "), QStringLiteral("V /variables/0"),
                QStringLiteral("A /entities/0"), QStringLiteral("A/V /entities/0/variables/0"),
                QStringLiteral("A/W /entities/0/variables/1"), QStringLiteral("A/B /entities/0/entities/0"),
                QStringLiteral("A/B/V /entities/0/entities/0/variables/0"),
                QStringLiteral("A/A /entities/0/entities/1"), QStringLiteral("A/B /entities/1"),
                QStringLiteral(" /entities/2"), QStringLiteral("X /entities/2/variables/0"),
                QStringLiteral("B /entities/3"), QStringLiteral("B/B /entities/3/variables/0")}));
    }

    void aPathNamesPlaces_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<QStringList>("pointers");
        const auto row = [](const char *path, const char *pointers) {
            QTest::newRow(path) << QString::fromLatin1(path)
                                << QString::fromLatin1(pointers).split(QLatin1Char(' '), Qt::SkipEmptyParts);
        };
        row("W", "/entities/0/variables/1");
        row("A", "/entities/0");
        row("B", "/entities/3");
        row("V", "/variables/0");
        row("A/V", "/entities/0/variables/0");
        row("B/V", "/entities/0/entities/0/variables/0");
        row("A/B", "/entities/0/entities/0 /entities/1");
        row("A/A", "/entities/0/entities/1");
        row("X", "/entities/2/variables/0");
        row("/entities/1", "/entities/1");
        row("/entities/3/variables/0", "/entities/3/variables/0");
        row("/entities/9", "");
        row("a", "");
        row("/A", "");
        row("A/", "");
        row("R", "");
        row("entities/0", "");
    }

    void aPathNamesPlaces()
    {
        QFETCH(QString, path);
        QFETCH(QStringList, pointers);
        QStringList found;
        const QVector<Place> places = placesNamed(placesBelow(*root), path);
        for (const Place &place : places)
            found.append(place.pointer);
        QCOMPARE(found, pointers);
    }

private:
    std::unique_ptr<TDmEntity> root;
};

QTEST_APPLESS_MAIN(tst_Places)
#include "tst_Places.moc"
