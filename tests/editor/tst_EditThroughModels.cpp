#include "editor/Edit.h"

#include "business/models/CsvPropertiesModel.h"
#include "business/models/DictionaryTreeModel.h"
#include "business/models/VarRangeModel.h"
#include "business/models/VarValueLabelDiccionaryModel.h"
#include "business/models/VariableDiccionaryModel.h"
#include "model/TDmSourceField.h"
#include "tests/editor/DeepText.h"
#include "tests/editor/DocumentLog.h"
#include "tests/editor/SmallCensus.h"
#include "tests/support/LogCatcher.h"
#include "tests/support/MessageBoxRobot.h"

#include <QMimeData>
#include <QtTest>

#include <memory>

using namespace tessel::editor;
using namespace tessel::test;

namespace {

constexpr QMessageBox::StandardButton Yes = QMessageBox::Yes;
constexpr QMessageBox::StandardButton No = QMessageBox::No;
constexpr QMessageBox::StandardButton Cancel = QMessageBox::Cancel;

/// What a drag of \a names out of the catalogue of a CSV file carries.
std::unique_ptr<QMimeData> fieldsOf(const QStringList &names)
{
    QList<TDmSourceField *> fields;
    for (const QString &name : names) {
        fields.append(new TDmSourceField);
        fields.last()->name = name;
    }
    const CsvPropertiesModel catalogue(nullptr, &fields);
    QModelIndexList rows;
    for (int row = 0; row < names.size(); ++row)
        rows.append(catalogue.index(row, 0));
    std::unique_ptr<QMimeData> data(catalogue.mimeData(rows));
    qDeleteAll(fields);
    return data;
}

} // namespace

Q_DECLARE_METATYPE(QMessageBox::StandardButton)

class tst_EditThroughModels : public QObject {
    Q_OBJECT

private slots:
    void init()
    {
        // Some of the library's operations write a debug line for each item.
        catcher = std::make_unique<LogCatcher>();
    }
    void cleanup() { catcher.reset(); }

    void aCellOfTheVariableTableIsTakenBack_data()
    {
        QTest::addColumn<int>("column");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("text");
        QTest::newRow("name") << 0 << "GENDER"
                              << "GENDER||||0";
        QTest::newRow("alias") << 1 << "P03"
                               << "SEX|P03|||0";
        QTest::newRow("label") << 2 << "Sex of the person"
                               << "SEX||Sex of the person||0";
        QTest::newRow("group") << 3 << "DEMOG"
                               << "SEX|||DEMOG|0";
        QTest::newRow("tag") << 4 << "12"
                             << "SEX||||12";
        QTest::newRow("a tag that is cut to the highest") << 4 << "123456"
                                                          << "SEX||||9999";
    }

    void aCellOfTheVariableTableIsTakenBack()
    {
        QFETCH(int, column);
        QFETCH(QString, typed);
        QFETCH(QString, text);
        SmallCensus census;
        VariableDiccionaryModel model(nullptr, &census.person, &census.document.root());
        const auto shown = [&] {
            const TDmVariable &v = census.sex;
            return QStringList{
                v.getName(), v.getAlias(), v.getLabel(), v.getGroup(), QString::number(v.getTag())}
                .join(QLatin1Char('|'));
        };
        compareTakenBack(
            census, Scope::ofVariable(census.sex),
            [&] { QVERIFY(model.setData(model.index(0, column), typed)); },
            column == 0 ? QStringLiteral("variables GENDER") : QStringLiteral("variables SEX"));
        QCOMPARE(shown(), QStringLiteral("SEX||||0"));
        census.document.undoStack()->redo();
        QCOMPARE(shown(), text);
    }

    void aRefusedTextIsNoStep()
    {
        SmallCensus census;
        VariableDiccionaryModel model(nullptr, &census.person, &census.document.root());
        MessageBoxRobot robot({QMessageBox::Ok});
        Edit edit(census.document, Scope::ofEntity(census.person));
        QVERIFY(!model.setData(model.index(0, 0), QStringLiteral("HOUSE")));
        QVERIFY(!edit.commit(QStringLiteral("rename SEX")));
        QCOMPARE(robot.texts().size(), 1);
        QCOMPARE(census.document.undoStack()->count(), 0);
    }

    void aTagThatIsNoNumberIsNoStep()
    {
        SmallCensus census;
        VariableDiccionaryModel model(nullptr, &census.person, &census.document.root());
        Edit edit(census.document, Scope::ofVariable(census.sex));
        QVERIFY(model.setData(model.index(0, 4), QStringLiteral("twelve")));
        QVERIFY(!edit.commit(QStringLiteral("change tag of SEX")));
    }

    void anEntitysNameIsTakenBack()
    {
        SmallCensus census;
        DictionaryTreeModel model(nullptr, &census.document.root());
        const QModelIndex root = model.index(0, 0);
        const QModelIndex house = model.index(0, 0, root);
        QCOMPARE(house.data().toString(), QStringLiteral("HOUSE"));
        compareTakenBack(
            census, Scope::ofEntity(census.house),
            [&] { QVERIFY(model.setData(house, QStringLiteral(" DWELLING "))); },
            QStringLiteral("entities DWELLING"));
        QCOMPARE(census.house.getName(), QStringLiteral("HOUSE"));
    }

    void aRangeIsTakenBack_data()
    {
        QTest::addColumn<QString>("type");
        QTest::addColumn<int>("column");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("ranges");
        QTest::newRow("minimum") << "INTEGER" << 0 << "3"
                                 << "3..14|15..120";
        QTest::newRow("maximum") << "INTEGER" << 1 << "20"
                                 << "0..20|15..120";
        QTest::newRow("a real bound") << "REAL" << 0 << "0.25"
                                      << "0.25..14|15..120";
        QTest::newRow("no number") << "REAL" << 1 << "x"
                                   << "0..0|15..120";
    }

    void aRangeIsTakenBack()
    {
        QFETCH(QString, type);
        QFETCH(int, column);
        QFETCH(QString, typed);
        SmallCensus census;
        census.age.setVarType(type);
        VarRangeModel model(nullptr, &census.age);
        compareTakenBack(
            census, Scope::ofVariable(census.age),
            [&] { QVERIFY(model.setData(model.index(0, column), typed)); }, QStringLiteral("variables AGE"));
        QCOMPARE(rangesOf(census.age), QStringLiteral("0..14|15..120"));
        census.document.undoStack()->redo();
        QTEST(rangesOf(census.age), "ranges");
    }

    void aValueLabelIsTakenBack()
    {
        SmallCensus census;
        VarValueLabelDiccionaryModel model(nullptr, &census.sex);
        compareTakenBack(
            census, Scope::ofVariable(census.sex),
            [&] {
                QVERIFY(model.setData(model.index(1, 0), QStringLiteral("9")));
                QVERIFY(model.setData(model.index(1, 1), QStringLiteral("Unknown")));
            },
            QStringLiteral("variables SEX"));
        QCOMPARE(labelsOf(census.sex), QStringLiteral("1=Male|2=Female"));
        census.document.undoStack()->redo();
        QCOMPARE(labelsOf(census.sex), QStringLiteral("1=Male|9=Unknown"));
    }

    void theAnswerAboutTheCodeIsTakenBackInOneStep_data()
    {
        QTest::addColumn<QMessageBox::StandardButton>("answer");
        QTest::addColumn<QString>("announced");
        QTest::addColumn<QString>("marks");
        QTest::newRow("yes") << Yes << "entities HOUSE; variables SIZE"
                             << "SIZE:HOUSE PERSON DEATH";
        QTest::newRow("no") << No << "entities DEATH HOUSE PERSON; variables SIZE"
                            << ":";
        QTest::newRow("cancel") << Cancel << ""
                                << "ROOMS:HOUSE PERSON DEATH";
    }

    void theAnswerAboutTheCodeIsTakenBackInOneStep()
    {
        QFETCH(QMessageBox::StandardButton, answer);
        QFETCH(QString, announced);
        SmallCensus census;
        census.house.setRefCode(QStringLiteral("ROOMS"));
        for (TDmEntity *entity : {&census.house, &census.person, &census.death})
            entity->setSelectable(true);
        const auto marks = [&] {
            QStringList names;
            for (const TDmEntity *entity : {&census.house, &census.person, &census.death}) {
                if (entity->getSelectable())
                    names.append(entity->getName());
            }
            return census.house.getRefCode() + QLatin1Char(':') + names.join(QLatin1Char(' '));
        };
        VariableDiccionaryModel model(nullptr, &census.house, &census.document.root());
        MessageBoxRobot robot({answer});
        Scope scope = Scope::ofTree(census.house);
        scope |= Scope::ofVariable(census.rooms);
        const auto rename = [&] { QVERIFY(model.setData(model.index(0, 0), QStringLiteral("SIZE"))); };
        if (announced.isEmpty()) {
            const QString before = deepTree(census.document.root());
            Edit edit(census.document, scope);
            rename();
            QVERIFY(!edit.commit(QStringLiteral("rename ROOMS")));
            QCOMPARE(deepTree(census.document.root()), before);
        } else {
            compareTakenBack(census, scope, rename, announced);
            QCOMPARE(marks(), QStringLiteral("ROOMS:HOUSE PERSON DEATH"));
            QCOMPARE(census.rooms.getName(), QStringLiteral("ROOMS"));
            census.document.undoStack()->redo();
            QCOMPARE(census.rooms.getName(), QStringLiteral("SIZE"));
        }
        QCOMPARE(robot.texts(), QStringList{"Variable identified as RefCode.\nKeep it as RefCode?"});
        QTEST(marks(), "marks");
    }

    void aDropOfFiveHundredFieldsIsTakenBackInOneStep()
    {
        SmallCensus census;
        QStringList names;
        for (int i = 0; i < 500; ++i)
            names.append(QStringLiteral("FIELD%1").arg(i));
        const std::unique_ptr<QMimeData> fields = fieldsOf(names);
        MessageBoxRobot robot;
        compareTakenBack(
            census, Scope::ofEntity(census.person), [&] { drop(census, *fields); },
            QStringLiteral("entities PERSON; lists PERSON"));
        QCOMPARE(namesOf(*census.person.getVariables()), QStringLiteral("SEX AGE TIES WORK"));
        census.document.undoStack()->redo();
        QCOMPARE(namesOf(*census.person.getVariables()),
            QStringLiteral("SEX AGE TIES WORK ") + names.join(QLatin1Char(' ')));
        QCOMPARE(robot.texts(), QStringList());
    }

    void anOverwrittenVariableComesBackAsTheVerySameObject()
    {
        SmallCensus census;
        const std::unique_ptr<QMimeData> fields = fieldsOf({QStringLiteral("SEX"), QStringLiteral("AGE")});
        MessageBoxRobot robot({Yes, Yes});
        const QList<TDmVariable *> before = *census.person.getVariables();
        Edit edit(census.document, Scope::ofEntity(census.person));
        drop(census, *fields);
        QVERIFY(edit.commit(QStringLiteral("add fields")));
        QCOMPARE(
            robot.texts(), (QStringList{"SEX already exists.Overwrite?", "AGE already exists.Overwrite?"}));
        const QList<TDmVariable *> after = *census.person.getVariables();
        QCOMPARE(namesOf(after), QStringLiteral("TIES WORK SEX AGE"));
        QVERIFY(!after.contains(&census.sex));
        QVERIFY(!after.contains(&census.age));

        census.document.undoStack()->undo();
        QCOMPARE(*census.person.getVariables(), before);
        QCOMPARE(labelsOf(census.sex), QStringLiteral("1=Male|2=Female"));
        QCOMPARE(rangesOf(census.age), QStringLiteral("0..14|15..120"));
        census.document.undoStack()->redo();
        QCOMPARE(*census.person.getVariables(), after);
    }

    void whatWasOverwrittenAndChangedBeforeIsTakenBackStepByStep()
    {
        SmallCensus census;
        QUndoStack &stack = *census.document.undoStack();
        Edit first(census.document, Scope::ofVariable(census.sex));
        census.sex.setTag(5);
        QVERIFY(first.commit(QStringLiteral("change tag")));
        const std::unique_ptr<QMimeData> fields = fieldsOf({QStringLiteral("SEX")});
        MessageBoxRobot robot({Yes});
        Edit second(census.document, Scope::ofEntity(census.person));
        drop(census, *fields);
        QVERIFY(second.commit(QStringLiteral("add fields")));
        stack.undo();
        QCOMPARE(census.person.getVariables()->first()->getTag(), 5);
        stack.undo();
        QCOMPARE(census.person.getVariables()->first(), &census.sex);
        QCOMPARE(census.sex.getTag(), 0);
    }

private:
    static void drop(SmallCensus &census, const QMimeData &fields)
    {
        VariableDiccionaryModel table(nullptr, &census.person, &census.document.root());
        QVERIFY(table.dropMimeData(&fields, Qt::CopyAction, -1, -1, QModelIndex()));
    }

    /// \a change is one step over \a scope, announced as \a announced. Left undone.
    template<typename Change>
    static void compareTakenBack(
        SmallCensus &census, const Scope &scope, const Change &change, const QString &announced)
    {
        DocumentLog log(census.document);
        QUndoStack &stack = *census.document.undoStack();
        const QString before = deepTree(census.document.root());
        Edit edit(census.document, scope);
        change();
        const QString after = deepTree(census.document.root());
        QVERIFY(edit.commit(QStringLiteral("change")));
        QCOMPARE(stack.count(), 1);
        QCOMPARE(log.take().value(0), QStringLiteral("changed ") + announced);
        QVERIFY(census.document.isModified());
        stack.undo();
        QCOMPARE(deepTree(census.document.root()), before);
        QVERIFY(!census.document.isModified());
        stack.redo();
        QCOMPARE(deepTree(census.document.root()), after);
        stack.undo();
        QCOMPARE(deepTree(census.document.root()), before);
    }

    std::unique_ptr<LogCatcher> catcher;
};

QTEST_MAIN(tst_EditThroughModels)
#include "tst_EditThroughModels.moc"
