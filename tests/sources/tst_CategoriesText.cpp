#include "sources/CategoriesText.h"

#include <QtTest>

using namespace tessel::sources;

class tst_CategoriesText : public QObject {
    Q_OBJECT

private slots:
    void text_data()
    {
        QTest::addColumn<QStringList>("codes");
        QTest::addColumn<QStringList>("labels");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QStringList>("reasons");

        QTest::newRow("nothing gives nothing") << QStringList{} << QStringList{} << "" << QStringList{};
        QTest::newRow("tabs part categories, a blank parts code and label")
            << QStringList{"1", "2"} << QStringList{"Urban", "Rural area"} << "1 Urban\t2 Rural area"
            << QStringList{};
        QTest::newRow("without a label the code stands alone")
            << QStringList{"1", "2"} << QStringList{"", " "} << "1\t2" << QStringList{};
        QTest::newRow("tabs and line ends become blanks, two of one line end one")
            << QStringList{"1", "2", "3"}
            << QStringList{"a\tb", "c\r\nd\ne", QStringLiteral("f\u2028g\u2029h\u0085i\x0bj")}
            << "1 a b\t2 c d e\t3 f g h i j" << QStringList{"tabs and line ends in 3 labels became blanks"};
        QTest::newRow("codes with blanks are left out and named")
            << QStringList{"a b", "2", "c\td"} << QStringList{"x", "y", "z"} << "2 y"
            << QStringList{
                   "2 codes are left out, because a category's code cannot hold a blank: \"a b\", \"c d\""};
        QTest::newRow("empty codes are left out and counted")
            << QStringList{"", "2", ""} << QStringList{"x", "y", ""} << "2 y"
            << QStringList{"2 empty codes are left out with their labels, because a category needs a code"};
        QTest::newRow("every reason is told")
            << QStringList{"", "a b", "3"} << QStringList{"x", "y", "z\t"} << "3 z "
            << QStringList{"1 empty codes are left out with their labels, because a category needs a code",
                   "1 codes are left out, because a category's code cannot hold a blank: \"a b\"",
                   "tabs and line ends in 1 labels became blanks"};
    }

    void text()
    {
        QFETCH(QStringList, codes);
        QFETCH(QStringList, labels);
        CategoriesText categories;
        for (int i = 0; i < codes.size(); ++i)
            categories.add(codes.at(i), labels.at(i));
        QTEST(categories.text(), "text");
        QTEST(categories.reasons(), "reasons");
    }

    void isCarried_data()
    {
        QTest::addColumn<QString>("code");
        QTest::addColumn<bool>("expected");
        QTest::newRow("a number") << "-1" << true;
        QTest::newRow("letters of any kind") << QStringLiteral("Ñ人") << true;
        QTest::newRow("nothing") << "" << false;
        QTest::newRow("a blank inside") << "a b" << false;
        QTest::newRow("a tab inside") << "a\tb" << false;
        QTest::newRow("a blank that does not break") << QStringLiteral("a\u00a0b") << false;
        QTest::newRow("a line end") << "a\n" << false;
        QTest::newRow("a blank of no width, which would be dropped as a byte-order mark")
            << QStringLiteral("\ufeff") << false;
    }

    void isCarried()
    {
        QFETCH(QString, code);
        QTEST(CategoriesText::isCarried(code), "expected");
    }
};

QTEST_APPLESS_MAIN(tst_CategoriesText)

#include "tst_CategoriesText.moc"
