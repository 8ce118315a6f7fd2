#include "editor/views/DeclaredCodesOffer.h"

#include "business/models/CsvPropertiesModel.h"
#include "business/models/DatasetPropertiesFieldsModel.h"
#include "editor/DictionaryDocument.h"
#include "editor/Edit.h"
#include "editor/Structure.h"
#include "editor/views/VariablePane.h"
#include "model/MetadataVariables.h"
#include "model/TDmEntity.h"
#include "model/TDmVariable.h"
#include "tests/editor/EditorFixtures.h"

#include <QAbstractButton>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QtTest>

#include <memory>

using namespace tessel::editor;
using namespace tessel::test;

namespace {

/// The table of variables with its offer, as they stand in the window; PERSON is shown.
class Desk {
public:
    Desk()
        : pane(document)
        , offer(document)
        , told(&offer, &DeclaredCodesOffer::told)
    {
        QObject::connect(&pane, &VariablePane::taken, &offer, &DeclaredCodesOffer::consider);
        load(document);
        pane.show(&entityIn(document, "PERSON"));
    }

    /// Drops number fields from 0 to 9, one for each "NAME MISSING NOTAPPLICABLE", "-" for no code.
    template<typename Catalogue, typename... More>
    void take(const QStringList &texts, const More &...more)
    {
        std::vector<TDmSourceField> fields(size_t(texts.size()));
        QList<TDmSourceField *> list;
        for (TDmSourceField &field : fields) {
            const QStringList words = texts.at(list.size()).split(' ');
            field.name = words.at(0);
            field.missing = words.at(1) == "-" ? QString() : words.at(1);
            field.notApp = words.at(2) == "-" ? QString() : words.at(2);
            field.fieldType = "INTEGER";
            field.rangeMin = "0";
            field.rangeMax = "9";
            list.append(&field);
        }
        const Catalogue catalogue(nullptr, &list, more...);
        QModelIndexList rows;
        for (int row = 0; row < catalogue.rowCount(); ++row)
            rows.append(catalogue.index(row, 0));
        const std::unique_ptr<QMimeData> data(catalogue.mimeData(rows));
        pane.take(data.get());
    }
    void drop(const QStringList &texts) { take<DatasetPropertiesFieldsModel>(texts, QString("*")); }

    TDmEntity &person() { return entityIn(document, "PERSON"); }
    TDmVariable &variable(const char *name) { return variableIn(document, "PERSON", name); }

    /// "A 10/11, B 99/98": the codes of the variables behind the first three.
    QString codes()
    {
        QStringList texts;
        for (const TDmVariable *each : person().getVariables()->mid(3))
            texts.append(
                QString("%1 %2/%3").arg(each->getName()).arg(each->getMissing()).arg(each->getNotappl()));
        return texts.join(", ");
    }

    void press(const QString &button)
    {
        auto *found = offer.findChild<QAbstractButton *>(button);
        if (!found || found->isHidden())
            qFatal("no %s", qPrintable(button));
        QTest::mouseClick(found, Qt::LeftButton);
    }
    QString step() { return document.undoStack()->undoText(); }
    void undo() { document.undoStack()->undo(); }
    void redo() { document.undoStack()->redo(); }

    DictionaryDocument document;
    VariablePane pane;
    DeclaredCodesOffer offer;
    QSignalSpy told;
};

QString sentence(int some, int all)
{
    return QString("%1 of the %2 new variables have missing or not-applicable codes declared in the file.")
        .arg(some)
        .arg(all);
}

} // namespace

class tst_DeclaredCodesOffer : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { QLoggingCategory::setFilterRules("default.debug=false"); }

    void codesAreOfferedWhereTheyDiffer_data()
    {
        QTest::addColumn<QStringList>("fields");
        QTest::addColumn<QString>("text");
        const QString none;
        QTest::newRow("none declared") << QStringList{"F - -", "G - -"} << none;
        QTest::newRow("those that were derived") << QStringList{"F 10 11"} << none;
        QTest::newRow("no numbers") << QStringList{"F .a NA"} << none;
        QTest::newRow("missing") << QStringList{"F 99 -"} << sentence(1, 1);
        QTest::newRow("not applicable") << QStringList{"F - 98"} << sentence(1, 1);
        QTest::newRow("three of five")
            << QStringList{"A 99 98", "B - -", "C 10 98", "D 10 11", "E 0 0"} << sentence(3, 5);
        QTest::newRow("a field whose name is split")
            << QStringList{"ID_PERSONA 99 -", "P1_AGE - -"} << sentence(1, 2);
    }

    void codesAreOfferedWhereTheyDiffer()
    {
        QFETCH(QStringList, fields);
        QFETCH(QString, text);
        Desk desk;
        QVERIFY(desk.offer.isHidden());
        desk.drop(fields);
        QCOMPARE(desk.offer.text(), text);
        QCOMPARE(desk.offer.isHidden(), text.isEmpty());
        QCOMPARE(desk.step(), QString("add fields to PERSON"));
        QCOMPARE(desk.document.undoStack()->count(), 1);
        QVERIFY(desk.codes().contains(" 10/11"));
        QVERIFY(!desk.codes().contains("9/"));
    }

    void fieldsWithoutCodesOfTheirOwnAreLeftAlone()
    {
        Desk desk;
        desk.take<CsvPropertiesModel>({"F 99 98"});
        QCOMPARE(desk.person().getVariables()->size(), 4);
        QVERIFY(desk.offer.isHidden());
    }

    void theCodesAreSetInOneStep()
    {
        Desk desk;
        desk.drop({"A 99 98", "B - -", "C - 97", "D 96 -"});
        desk.press("codesSet");
        QCOMPARE(desk.codes(), QString("A 99/98, B 10/11, C 10/97, D 96/11"));
        QCOMPARE(desk.step(), QString("set declared codes"));
        QCOMPARE(desk.document.undoStack()->count(), 2);
        QVERIFY(desk.offer.isHidden());
        QCOMPARE(desk.told.count(), 1);
        QCOMPARE(desk.told.first().first().toString(), QString("3 variables have the declared codes now."));
        desk.undo();
        QCOMPARE(desk.codes(), QString("A 10/11, B 10/11, C 10/11, D 10/11"));
        QVERIFY(desk.offer.isHidden());
        desk.redo();
        QCOMPARE(desk.codes(), QString("A 99/98, B 10/11, C 10/97, D 96/11"));
        desk.undo();
        desk.undo();
        QCOMPARE(desk.codes(), QString());
        desk.redo();
        desk.redo();
        QCOMPARE(desk.codes(), QString("A 99/98, B 10/11, C 10/97, D 96/11"));
        QVERIFY(desk.offer.isHidden());
    }

    void theyCanBeLeft_data()
    {
        QTest::addColumn<QString>("button");
        QTest::newRow("by the button") << "codesLeave";
        QTest::newRow("by closing") << "codesClose";
    }

    void theyCanBeLeft()
    {
        QFETCH(QString, button);
        Desk desk;
        desk.drop({"A 99 98"});
        desk.press(button);
        QVERIFY(desk.offer.isHidden());
        QCOMPARE(desk.codes(), QString("A 10/11"));
        QCOMPARE(desk.document.undoStack()->count(), 1);
        // Not even later.
        Structure(desk.document).addVariable(desk.person());
        desk.undo();
        QVERIFY(desk.offer.isHidden());
        desk.drop({"B 99 98"});
        QCOMPARE(desk.offer.text(), sentence(1, 1));
        QCOMPARE(desk.told.count(), 0);
    }

    void undoingTheDropEndsTheOffer()
    {
        Desk desk;
        desk.drop({"A 99 98"});
        desk.undo();
        QVERIFY(desk.offer.isHidden());
        desk.redo();
        QVERIFY(desk.offer.isHidden());
    }

    void otherEditsLeaveTheOffer()
    {
        Desk desk;
        desk.drop({"A 99 98"});
        Structure(desk.document).addEntity(desk.document.root());
        QCOMPARE(desk.offer.text(), sentence(1, 1));
        desk.undo();
        QCOMPARE(desk.offer.text(), sentence(1, 1));
    }

    void variablesThatAreGoneAreNotSpokenOf()
    {
        Desk desk;
        desk.drop({"A 99 98", "B 99 98", "C - -"});
        Structure edits(desk.document);
        QVERIFY(edits.removeVariables(desk.person(), {&desk.variable("A")}));
        QCOMPARE(desk.offer.text(), sentence(1, 2));
        desk.undo();
        QCOMPARE(desk.offer.text(), sentence(2, 3));
        QVERIFY(edits.removeVariables(desk.person(), {&desk.variable("A")}));
        desk.press("codesSet");
        QCOMPARE(desk.codes(), QString("B 99/98, C 10/11"));
        desk.undo();
        desk.undo();
        QCOMPARE(desk.codes(), QString("A 10/11, B 10/11, C 10/11"));
        QVERIFY(desk.offer.isHidden());
    }

    void withTheirEntityTheyAreGone()
    {
        Desk desk;
        desk.drop({"A 99 98"});
        QVERIFY(Structure(desk.document).removeEntity(entityIn(desk.document, "HOUSE")));
        QVERIFY(desk.offer.isHidden());
    }

    void codesThatWereTypedMeanwhileCount()
    {
        Desk desk;
        desk.drop({"A 99 98", "B 99 98"});
        const auto giveBy = [&desk](const char *name) {
            Edit edit(desk.document, Scope::ofVariable(desk.variable(name)));
            desk.variable(name).setMissing(99);
            desk.variable(name).setNotappl(98);
            QVERIFY(edit.commit("by hand"));
        };
        giveBy("A");
        QCOMPARE(desk.offer.text(), sentence(1, 2));
        giveBy("B");
        QVERIFY(desk.offer.isHidden());
    }

    void anotherDictionaryEndsTheOffer()
    {
        Desk desk;
        desk.drop({"A 99 98"});
        desk.document.clear();
        QVERIFY(desk.offer.isHidden());
        load(desk.document);
        desk.pane.show(&desk.person());
        desk.drop({"B 99 98", "C - -"});
        QCOMPARE(desk.offer.text(), sentence(1, 2));
    }

    void aSecondDropJoinsTheFirst()
    {
        Desk desk;
        desk.drop({"A 99 98"});
        desk.drop({"B - -", "C - -"});
        QCOMPARE(desk.offer.text(), sentence(1, 1));
        desk.pane.show(&entityIn(desk.document, "PLOT"));
        desk.drop({"D - 97", "E - -"});
        QCOMPARE(desk.offer.text(), sentence(2, 3));
        desk.press("codesSet");
        QCOMPARE(desk.codes(), QString("A 99/98, B 10/11, C 10/11"));
        QCOMPARE(variableIn(desk.document, "PLOT", "D").getNotappl(), 97);
        QCOMPARE(desk.told.first().first().toString(), QString("2 variables have the declared codes now."));
        desk.undo();
        QCOMPARE(desk.codes(), QString("A 10/11, B 10/11, C 10/11"));
        QCOMPARE(variableIn(desk.document, "PLOT", "D").getNotappl(), 11);
    }

    void onlyNewVariablesAreMeant()
    {
        Desk desk;
        TDmVariable &age = desk.variable("AGE");
        age.getMetadataVariables()->setField("F");
        const int missing = age.getMissing();
        desk.drop({"F 99 98"});
        QCOMPARE(desk.offer.text(), sentence(1, 1));
        desk.press("codesSet");
        QCOMPARE(age.getMissing(), missing);
        QCOMPARE(desk.codes(), QString("F 99/98"));
    }

    void theDetailsNameEachCode()
    {
        Desk desk;
        desk.drop({"A 99 98", "B - -", "C 10 -1", "D 96 -"});
        desk.press("codesDetails");
        const auto *text = desk.offer.findChild<QPlainTextEdit *>();
        QVERIFY(text && text->isVisible() && !text->window()->isModal());
        QCOMPARE(text->toPlainText(),
            QString("A: missing code 99 instead of 10.\nA: not-applicable code 98 instead of 11.\n"
                    "C: not-applicable code -1 instead of 11.\nD: missing code 96 instead of 10."));
    }

    void itIsOperatedByKeys()
    {
        Desk desk;
        desk.drop({"A 99 98"});
        bringUp(desk.offer);
        QStringList reached;
        desk.offer.findChild<QPushButton *>("codesDetails")->setFocus();
        for (int i = 0; i < 4; ++i) {
            reached.append(QApplication::focusWidget()->objectName());
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        }
        QCOMPARE(reached, (QStringList{"codesDetails", "codesSet", "codesLeave", "codesClose"}));
        desk.offer.findChild<QPushButton *>("codesSet")->setFocus();
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
        QCOMPARE(desk.codes(), QString("A 99/98"));
    }
};

QTEST_MAIN(tst_DeclaredCodesOffer)
#include "tst_DeclaredCodesOffer.moc"
