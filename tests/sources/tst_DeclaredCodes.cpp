#include "sources/DeclaredCodes.h"

#include "model/TDmSourceField.h"
#include "model/TDmVariable.h"

#include <QtTest>

using tessel::sources::DeclaredCodes;

namespace {

/// "99", or "-" for no code.
QString textOf(const std::optional<int> &code) { return code ? QString::number(*code) : QStringLiteral("-"); }

} // namespace

class tst_DeclaredCodes : public QObject {
    Q_OBJECT

private slots:
    void codesAreWholeNumbers_data()
    {
        QTest::addColumn<QString>("missing");
        QTest::addColumn<QString>("notApp");
        QTest::addColumn<QString>("codes");
        QTest::newRow("none") << ""
                              << ""
                              << "- -";
        QTest::newRow("both") << "99"
                              << "98"
                              << "99 98";
        QTest::newRow("missing alone") << "99"
                                       << ""
                                       << "99 -";
        QTest::newRow("not applicable alone") << ""
                                              << "98"
                                              << "- 98";
        QTest::newRow("zero is a code") << "0"
                                        << "0"
                                        << "0 0";
        QTest::newRow("negative") << "-1"
                                  << "-9999"
                                  << "-1 -9999";
        QTest::newRow("the lowest and the highest") << "-2147483648"
                                                    << "2147483647"
                                                    << "-2147483648 2147483647";
        QTest::newRow("beyond them") << "-2147483649"
                                     << "2147483648"
                                     << "- -";
        QTest::newRow("a fraction") << "9.5"
                                    << "9.0"
                                    << "- -";
        QTest::newRow("words") << ".a"
                               << "NA"
                               << "- -";
    }

    void codesAreWholeNumbers()
    {
        QFETCH(QString, missing);
        QFETCH(QString, notApp);
        TDmSourceField field;
        field.missing = missing;
        field.notApp = notApp;
        const DeclaredCodes codes = DeclaredCodes::of(field);
        QTEST(textOf(codes.missing) + ' ' + textOf(codes.notApplicable), "codes");
    }

    void onlyWhatIsDeclaredIsGiven_data()
    {
        QTest::addColumn<QString>("missing");
        QTest::addColumn<QString>("notApp");
        QTest::addColumn<bool>("wouldChange");
        QTest::addColumn<QString>("after");
        QTest::newRow("nothing declared") << ""
                                          << "" << false << "10 11";
        QTest::newRow("the same codes") << "10"
                                        << "11" << false << "10 11";
        QTest::newRow("another missing code") << "99"
                                              << "" << true << "99 11";
        QTest::newRow("another not-applicable code") << ""
                                                     << "98" << true << "10 98";
        QTest::newRow("one of two differs") << "10"
                                            << "98" << true << "10 98";
        QTest::newRow("the other of two differs") << "99"
                                                  << "11" << true << "99 11";
        QTest::newRow("both differ") << "99"
                                     << "98" << true << "99 98";
        QTest::newRow("zero") << "0"
                              << "0" << true << "0 0";
    }

    void onlyWhatIsDeclaredIsGiven()
    {
        QFETCH(QString, missing);
        QFETCH(QString, notApp);
        TDmSourceField field;
        field.missing = missing;
        field.notApp = notApp;
        const DeclaredCodes codes = DeclaredCodes::of(field);
        TDmVariable variable;
        variable.setMissing(10);
        variable.setNotappl(11);
        QTEST(codes.wouldChange(variable), "wouldChange");
        QCOMPARE(variable.getMissing(), 10);
        QCOMPARE(variable.getNotappl(), 11);
        codes.giveTo(variable);
        QTEST(QStringLiteral("%1 %2").arg(variable.getMissing()).arg(variable.getNotappl()), "after");
        QVERIFY(!codes.wouldChange(variable));
    }
};

QTEST_APPLESS_MAIN(tst_DeclaredCodes)
#include "tst_DeclaredCodes.moc"
