#include "business/models/VarValueLabelDiccionaryModel.h"

#include "tests/business/models/TwoColumnListContract.h"

#include <QtTest>

#include <type_traits>

using namespace tessel::test;

using Model = VarValueLabelDiccionaryModel;

static_assert(std::is_base_of_v<QAbstractItemModel, Model>);
static_assert(std::is_constructible_v<Model, QObject *, TDmVariable *>);
static_assert(!std::is_constructible_v<Model, QObject *>);
static_assert(std::is_convertible_v<
    decltype(std::declval<const Model &>().getItemData(std::declval<ValueLabelElement *>(), 0)), QVariant>);

class tst_VarValueLabelDiccionaryModel : public TwoColumnListContract {
    Q_OBJECT

protected:
    std::unique_ptr<OpenList> open(const QStringList &rows) const override
    {
        return std::make_unique<Open<Model, ValueLabelElement>>(rows);
    }
    std::unique_ptr<QAbstractItemModel> openOver(TDmVariable *variable, QObject *parent) const override
    {
        return std::make_unique<Model>(parent, variable);
    }
    QString header(int column) const override { return column == 0 ? "Code" : "Label"; }

private slots:
    void everyTextIsAccepted_data()
    {
        QTest::addColumn<QVariant>("value");
        QTest::addColumn<QString>("text");
        QTest::newRow("a text") << QVariant("Urban") << "Urban";
        QTest::newRow("empty") << QVariant("") << "";
        QTest::newRow("blanks are kept") << QVariant("  a \t") << "  a \t";
        QTest::newRow("another row's text") << QVariant("20") << "20";
        QTest::newRow("another row's label") << QVariant("Rural") << "Rural";
        QTest::newRow("quotation marks and controls") << QVariant("\"\\\n\x01") << "\"\\\n\x01";
        QTest::newRow("letters beyond ASCII")
            << QVariant(QString::fromUtf8("año")) << QString::fromUtf8("año");
        QTest::newRow("a long text") << QVariant(QString(5000, 'x')) << QString(5000, 'x');
        QTest::newRow("a whole number") << QVariant(7) << "7";
        QTest::newRow("a number") << QVariant(2.5) << "2.5";
        QTest::newRow("a truth value") << QVariant(true) << "true";
        QTest::newRow("no value") << QVariant() << "";
        QTest::newRow("a list of one text") << QVariant(QStringList{"a"}) << "a";
        QTest::newRow("a list of two texts") << QVariant(QStringList{"a", "b"}) << "";
    }
    void everyTextIsAccepted()
    {
        QFETCH(QVariant, value);
        QFETCH(QString, text);
        for (const int column : {0, 1}) {
            const auto tested = open({"10|Urban area", "20|Rural"});
            QVERIFY(tested->model().setData(tested->model().index(0, column), value, Qt::EditRole));
            const QString expected = column == 0 ? text + "|Urban area" : "10|" + text;
            QCOMPARE(tested->stored(), QStringList({expected, "20|Rural"}));
            QCOMPARE(shownRows(tested->model()), QStringList({expected, "20|Rural"}));
        }
    }

    void codesAndLabelsAreShownAsTexts()
    {
        const auto tested = open({"007|3.10", "|"});
        QCOMPARE(tested->model().index(0, 0).data(), QVariant("007"));
        QCOMPARE(tested->model().index(0, 1).data(Qt::EditRole), QVariant("3.10"));
        for (const int column : {0, 1}) {
            QCOMPARE(tested->model().index(0, column).data().userType(), int(QMetaType::QString));
            // An empty text is a text.
            QCOMPARE(tested->model().index(1, column).data().userType(), int(QMetaType::QString));
        }
    }

    void theTypeOfTheVariableDoesNotMatter()
    {
        for (const char *type : {"INTEGER", "REAL", "STRING", ""}) {
            const auto tested = open({"1.5|2.5"});
            tested->variable().setVarType(type);
            QVERIFY(tested->model().setData(tested->model().index(0, 0), "3.5", Qt::EditRole));
            QCOMPARE(shownRows(tested->model()), QStringList{"3.5|2.5"});
        }
    }

    void theVariableIsNotNeededAfterwards()
    {
        auto variable = variableWith<ValueLabelElement>({"1|Urban", "2|Rural"});
        const QList<ValueLabelElement *> elements = *variable->getValueLabelElementList();
        Model model(nullptr, variable.get());
        variable->getValueLabelElementList()->clear();
        variable.reset();
        QCOMPARE(shownRows(model), QStringList({"1|Urban", "2|Rural"}));
        QVERIFY(model.setData(model.index(1, 0), "3", Qt::EditRole));
        QCOMPARE(elements.at(1)->getValue(), QString("3"));
        qDeleteAll(elements);
    }
};

QTEST_MAIN(tst_VarValueLabelDiccionaryModel)
#include "tst_VarValueLabelDiccionaryModel.moc"
