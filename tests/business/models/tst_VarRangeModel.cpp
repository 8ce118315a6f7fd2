#include "business/models/VarRangeModel.h"

#include "tests/business/models/TwoColumnListContract.h"

#include <QtTest>

#include <cfloat>
#include <climits>
#include <limits>
#include <type_traits>

using namespace tessel::test;

static_assert(std::is_base_of_v<QAbstractItemModel, VarRangeModel>);
static_assert(std::is_constructible_v<VarRangeModel, QObject *, TDmVariable *>);
static_assert(!std::is_constructible_v<VarRangeModel, QObject *>);
static_assert(std::is_convertible_v<decltype(&VarRangeModel::getItemData),
    QVariant (VarRangeModel::*)(Range *, int) const>);

namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNoNumber = std::numeric_limits<double>::quiet_NaN();

/// Types that are not "INTEGER" to the letter.
const QStringList kOtherTypes{
    "REAL", "STRING", "BOOL", "", "integer", "Integer", " INTEGER", "INTEGER ", "INTEGERS"};

/// A number that tells every double from the next one, the zero's sign and what is not a number included.
QString exact(double number) { return QString::number(number, 'g', 17); }

} // namespace

class tst_VarRangeModel : public TwoColumnListContract {
    Q_OBJECT

protected:
    std::unique_ptr<OpenList> open(const QStringList &rows) const override
    {
        return std::make_unique<Open<VarRangeModel, Range>>(rows);
    }
    std::unique_ptr<QAbstractItemModel> openOver(TDmVariable *variable, QObject *parent) const override
    {
        return std::make_unique<VarRangeModel>(parent, variable);
    }
    QString header(int column) const override { return column == 0 ? "Minimum" : "Maximum"; }

    std::unique_ptr<OpenList> openAs(const QString &type, const QStringList &rows) const
    {
        auto tested = open(rows);
        tested->variable().setVarType(type);
        return tested;
    }

private slots:
    void boundsOfAnIntegerVariableAreCutOffTowardZero_data()
    {
        QTest::addColumn<double>("bound");
        QTest::addColumn<int>("shown");
        QTest::newRow("a whole number") << 7.0 << 7;
        QTest::newRow("zero") << 0.0 << 0;
        QTest::newRow("below zero") << -7.0 << -7;
        QTest::newRow("decimals") << 2.9 << 2;
        QTest::newRow("decimals below zero") << -2.9 << -2;
        QTest::newRow("half") << 2.5 << 2;
        QTest::newRow("a little above zero") << 0.999 << 0;
        QTest::newRow("a little below zero") << -0.999 << 0;
        QTest::newRow("next to a whole number") << 2.9999999999 << 2;
        QTest::newRow("highest int") << 2147483647.0 << INT_MAX;
        QTest::newRow("one below the highest int") << 2147483646.9 << INT_MAX - 1;
        QTest::newRow("decimals at the highest int") << 2147483647.5 << INT_MAX;
        QTest::newRow("beyond the highest int") << 2147483648.0 << INT_MAX;
        QTest::newRow("lowest int") << -2147483648.0 << INT_MIN;
        QTest::newRow("one above the lowest int") << -2147483647.9 << INT_MIN + 1;
        QTest::newRow("beyond the lowest int") << -2147483649.0 << INT_MIN;
        QTest::newRow("far beyond") << 1e300 << INT_MAX;
        QTest::newRow("far beyond below zero") << -1e300 << INT_MIN;
        QTest::newRow("infinite") << kInfinity << INT_MAX;
        QTest::newRow("infinite below zero") << -kInfinity << INT_MIN;
        QTest::newRow("not a number") << kNoNumber << 0;
        QTest::newRow("not a number, with a sign") << -kNoNumber << 0;
    }
    void boundsOfAnIntegerVariableAreCutOffTowardZero()
    {
        QFETCH(double, bound);
        QFETCH(int, shown);
        const auto tested = openAs("INTEGER", {"0|0"});
        auto *range = static_cast<Range *>(tested->object(0));
        range->setRangeMin(bound);
        range->setRangeMax(bound);
        for (const int column : {0, 1}) {
            for (const int role : {Qt::DisplayRole, Qt::EditRole}) {
                const QVariant data = tested->model().data(tested->model().index(0, column), role);
                QCOMPARE(data.userType(), int(QMetaType::Int));
                QCOMPARE(data.toInt(), shown);
            }
        }
        QCOMPARE(exact(range->getRangeMin()), exact(bound));
    }

    void boundsOfOtherVariablesAreShownAsTheyAre_data()
    {
        QTest::addColumn<double>("bound");
        for (const double bound :
            {7.0, 2.9, -2.9, 0.1, -0.0, 1e300, DBL_MAX, DBL_MIN, kInfinity, -kInfinity, kNoNumber})
            QTest::newRow(qPrintable(exact(bound))) << bound;
    }
    void boundsOfOtherVariablesAreShownAsTheyAre()
    {
        QFETCH(double, bound);
        for (const QString &type : kOtherTypes) {
            const auto tested = openAs(type, {"0|0"});
            auto *range = static_cast<Range *>(tested->object(0));
            range->setRangeMin(bound);
            range->setRangeMax(bound);
            for (const int column : {0, 1}) {
                for (const int role : {Qt::DisplayRole, Qt::EditRole}) {
                    const QVariant data = tested->model().data(tested->model().index(0, column), role);
                    QCOMPARE(data.userType(), int(QMetaType::Double));
                    QCOMPARE(exact(data.toDouble()), exact(bound));
                }
            }
        }
    }

    void onlyIntegerInCapitalsCutsOffDecimals_data()
    {
        QTest::addColumn<QString>("type");
        QTest::addColumn<QString>("row");
        QTest::newRow("\"INTEGER\"") << "INTEGER"
                                     << "2|-2";
        for (const QString &type : kOtherTypes)
            QTest::newRow(qPrintable('"' + type + '"')) << type << "2.9|-2.9";
    }
    void onlyIntegerInCapitalsCutsOffDecimals()
    {
        QFETCH(QString, type);
        const auto tested = openAs(type, {"2.9|-2.9"});
        QTEST(shownRows(tested->model()).join(""), "row");
    }

    void editsAreConvertedByTheTypeOfTheVariable_data()
    {
        QTest::addColumn<QVariant>("value");
        QTest::addColumn<double>("asInteger");
        QTest::addColumn<double>("asOther");
        const auto row = [](const char *tag, const QVariant &value, double asInteger, double asOther) {
            QTest::newRow(tag) << value << asInteger << asOther;
        };
        row("a whole number", 7, 7, 7);
        row("a whole number as text", "7", 7, 7);
        row("below zero as text", "-7", -7, -7);
        row("a plus sign", "+7", 7, 7);
        row("no number at all", "abc", 0, 0);
        row("a number with a unit", "7 years", 0, 0);
        row("empty text", "", 0, 0);
        row("blanks around", " 5 ", 5, 5);
        row("decimals as text are no whole number", "3.5", 0, 3.5);
        row("no decimals behind the point are no whole number", "3.0", 0, 3);
        row("a decimal comma", "3,5", 0, 0);
        row("an exponent as text is no whole number", "1e3", 0, 1000);
        row("hexadecimal", "0x10", 0, 0);
        row("decimals as a number are rounded", 2.9, 3, 2.9);
        row("decimals as a number are rounded below zero", -2.9, -3, -2.9);
        row("few decimals as a number are rounded", 2.1, 2, 2.1);
        row("true", true, 1, 1);
        row("no value", QVariant(), 0, 0);
        row("bytes", QByteArray("12"), 12, 12);
        row("a list", QStringList{"12"}, 0, 0);
        row("highest int as text", "2147483647", INT_MAX, INT_MAX);
        row("lowest int as text", "-2147483648", INT_MIN, INT_MIN);
        row("not a number as text", "nan", 0, kNoNumber);
        row("infinite as text", "inf", 0, kInfinity);
        row("infinite below zero as text", "-inf", 0, -kInfinity);
        row("too large a number as text", "1e400", 0, kInfinity);
        // What lies outside int is whatever QVariant makes of it.
        row("beyond int as text", "3000000000", QVariant("3000000000").toInt(), 3e9);
        row("beyond int as a number", 3e9, QVariant(3e9).toInt(), 3e9);
    }
    void editsAreConvertedByTheTypeOfTheVariable()
    {
        QFETCH(QVariant, value);
        QFETCH(double, asInteger);
        QFETCH(double, asOther);
        for (const QString &type : QStringList{"INTEGER"} + kOtherTypes) {
            const auto tested = openAs(type, {"11|22"});
            const auto *range = static_cast<const Range *>(tested->object(0));
            const QString expected = exact(type == "INTEGER" ? asInteger : asOther);
            QVERIFY(tested->model().setData(tested->model().index(0, 0), value, Qt::EditRole));
            QCOMPARE(exact(range->getRangeMin()), expected);
            QCOMPARE(range->getRangeMax(), 22.0);
            QVERIFY(tested->model().setData(tested->model().index(0, 1), value, Qt::EditRole));
            QCOMPARE(exact(range->getRangeMin()), expected);
            QCOMPARE(exact(range->getRangeMax()), expected);
        }
    }

    void aMinimumMayExceedItsMaximumAndRangesMayOverlap()
    {
        for (const char *type : {"INTEGER", "REAL"}) {
            const auto tested = openAs(type, {"1|5", "6|9"});
            QVERIFY(tested->model().setData(tested->model().index(0, 0), "8", Qt::EditRole));
            QVERIFY(tested->model().setData(tested->model().index(1, 1), "-8", Qt::EditRole));
            QCOMPARE(tested->stored(), QStringList({"8|5", "6|-8"}));
        }
    }

    void anEditOfOneBoundLeavesTheDecimalsOfTheOther()
    {
        const auto tested = openAs("INTEGER", {"2.9|7.9"});
        QVERIFY(tested->model().setData(tested->model().index(0, 0), "3", Qt::EditRole));
        QCOMPARE(tested->stored(), QStringList{"3|7.9"});
    }

    void editsInOtherRolesAndColumnsKeepTheDecimals()
    {
        const auto tested = openAs("INTEGER", {"2.9|7.9"});
        QVERIFY(tested->model().setData(tested->model().index(0, 0), "3", Qt::DisplayRole));
        QVERIFY(tested->model().setData(tested->model().index(0, 2), "3", Qt::EditRole));
        QCOMPARE(tested->stored(), QStringList{"2.9|7.9"});
    }

    void theTypeIsAskedAtEveryCall()
    {
        const auto tested = openAs("REAL", {"2.9|-2.9"});
        QCOMPARE(shownRows(tested->model()), QStringList{"2.9|-2.9"});
        tested->variable().setVarType("INTEGER");
        QCOMPARE(shownRows(tested->model()), QStringList{"2|-2"});
        QVERIFY(tested->model().setData(tested->model().index(0, 0), "3.5", Qt::EditRole));
        tested->variable().setVarType("REAL");
        QCOMPARE(shownRows(tested->model()), QStringList{"0|-2.9"});
    }

    void otherColumnsOfAnIntegerVariableShowNothing()
    {
        const auto tested = openAs("INTEGER", {"2.9|-2.9", "null"});
        for (const int column : {2, -1}) {
            QVERIFY(!tested->itemData(tested->object(0), column).isValid());
            QVERIFY(!tested->model().data(tested->model().index(0, column)).isValid());
        }
        for (const int column : {0, 1}) {
            QVERIFY(!tested->itemData(nullptr, column).isValid());
            QVERIFY(!tested->model().data(tested->model().index(1, column)).isValid());
            QVERIFY(!tested->model().setData(tested->model().index(1, column), 5));
        }
    }

    void aVariableWithoutLayoutOrRangeListHasNoRanges()
    {
        TDmVariable variable;
        variable.setVarType("INTEGER");
        variable.getMetadataVariables()->setRange(nullptr);
        const VarRangeModel withoutList(nullptr, &variable);
        QCOMPARE(withoutList.rowCount(), 0);
        QCOMPARE(withoutList.index(0, 0), QModelIndex());
        variable.setMetadataVariables(nullptr);
        const VarRangeModel withoutLayout(nullptr, &variable);
        QCOMPARE(withoutLayout.rowCount(), 0);
        QCOMPARE(withoutLayout.columnCount(), 2);
        QCOMPARE(withoutLayout.index(0, 0), QModelIndex());
    }
};

QTEST_MAIN(tst_VarRangeModel)
#include "tst_VarRangeModel.moc"
