#include "editor/sources/LookupList.h"

#include <QTemporaryDir>
#include <QtTest>

using tessel::documents::Outcome;
using tessel::editor::LookupList;

namespace {

const char *const kExpected =
    "expected a list of lookups, [{\"id\": \"...\", \"label\": \"...\"}, ...], or an "
    "object with such a list under \"lookups\"";

/// "[ID-LABEL]..." of what was read, or "LINE:COLUMN what is wrong".
QString textOf(const Outcome<LookupList> &outcome)
{
    if (!outcome.result) {
        return QStringLiteral("%1:%2 %3")
            .arg(outcome.problem.line)
            .arg(outcome.problem.column)
            .arg(outcome.problem.message);
    }
    QString text;
    for (const auto &lookup : outcome.result->lookups)
        text += QStringLiteral("[%1-%2]").arg(lookup->getId(), lookup->getLabel());
    return text;
}

QString faultOfLookup(int number)
{
    return QStringLiteral(
        "0:0 lookup %1 is not as expected; expected an object with the texts \"id\", which must not "
        "be empty, and \"label\"")
        .arg(number);
}

} // namespace

class tst_LookupList : public QObject {
    Q_OBJECT

private slots:
    void listsAreRead_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("expected");
        const auto row = [](const char *tag, const QByteArray &bytes, const QString &expected) {
            QTest::newRow(tag) << bytes << expected;
        };
        row("a list", R"([{"id": "CAT1", "label": "Occupations"}, {"id": "CAT2", "label": "Trades"}])",
            "[CAT1-Occupations][CAT2-Trades]");
        row("an object with a list", R"({"lookups": [{"id": "CAT1", "label": "Occupations"}]})",
            "[CAT1-Occupations]");
        row("an empty list", "[]", "");
        row("an object with an empty list", R"({"lookups": []})", "");
        row("other keys are passed over",
            R"({"version": 2, "lookups": [{"id": "A", "label": "a", "x": [1]}]})", "[A-a]");
        row("an empty label is accepted", R"([{"id": "A", "label": ""}])", "[A-]");
        row("equal lookups stay", R"([{"id": "A", "label": "a"}, {"id": "A", "label": "a"}])", "[A-a][A-a]");
        row("texts are taken as they stand", R"([{"id": " A ", "label": " a\n"}])", "[ A - a\n]");
        row("letters beyond ASCII", "[{\"id\": \"A\xc3\x91O\", \"label\": \"\\u4e2d\"}]",
            QStringLiteral("[A\u00d1O-\u4e2d]"));
        row("a byte-order mark", "\xef\xbb\xbf[{\"id\": \"A\", \"label\": \"a\"}]", "[A-a]");
    }

    void listsAreRead()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(QString, expected);
        const Outcome<LookupList> outcome = LookupList::parse(bytes);
        QVERIFY2(outcome.result.has_value(), qPrintable(outcome.problem.message));
        QCOMPARE(textOf(outcome), expected);
    }

    void anythingElseIsOneProblem_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("expected");
        const auto row = [](const char *tag, const QByteArray &bytes, const QString &expected) {
            QTest::newRow(tag) << bytes << expected;
        };
        const QString unlike = QStringLiteral("0:0 ") + kExpected;
        row("no byte at all", "", unlike);
        row("blanks only", " \n", unlike);
        row("a number", "42", unlike);
        row("a text", "\"lookups\"", unlike);
        row("null", "null", unlike);
        row("something else than JSON", "id;label\nA;a\n", unlike);
        row("an object without a list", R"({"entities": []})", unlike);
        row("an empty object", "{}", unlike);
        row("an object with something else than a list", R"({"lookups": {"A": "a"}})", unlike);
        row("an object with a text for a list", R"({"lookups": "A"})", unlike);
        row("letter case counts", R"({"Lookups": []})", unlike);
        row("UTF-16", QByteArray("\xff\xfe[\0]\0", 6),
            "0:0 expected text in UTF-8, found UTF-16; save the file in UTF-8");
        row("UTF-16, big end first", QByteArray("\xfe\xff\0[\0]", 6),
            "0:0 expected text in UTF-8, found UTF-16; save the file in UTF-8");
        row("a text for a lookup", R"(["A"])", faultOfLookup(1));
        row("a lookup without an id", R"([{"id": "A", "label": "a"}, {"label": "b"}])", faultOfLookup(2));
        row("a lookup with an empty id", R"([{"id": "", "label": "a"}])", faultOfLookup(1));
        row("a lookup with a number for an id", R"([{"id": 7, "label": "a"}])", faultOfLookup(1));
        row("a lookup without a label", R"([{"id": "A"}])", faultOfLookup(1));
        row("a lookup with a number for a label", R"([{"id": "A", "label": 7}])", faultOfLookup(1));
        row("a lookup with null for a label", R"([{"id": "A", "label": null}])", faultOfLookup(1));
        row("a bad lookup under the key", R"({"lookups": [{"id": "A", "label": "a"}, 1]})", faultOfLookup(2));
        row("a list within a list", R"([[{"id": "A", "label": "a"}]])", faultOfLookup(1));
        row("a missing comma is found", "[{\"id\": \"A\" \"label\": \"a\"}]",
            "1:13 expected \",\" or \"}\" after a value in an object");
        row("a missing comma is found behind a byte-order mark",
            "\xef\xbb\xbf\n[{\"id\": \"A\" \"label\": \"a\"}]",
            "2:13 expected \",\" or \"}\" after a value in an object");
        row("a list that is cut off", "[\n{\"id\": \"A\"",
            "2:11 expected \",\" or \"}\" after a value in an object, but the file ends here; it may have "
            "been cut off");
    }

    void anythingElseIsOneProblem()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(QString, expected);
        const Outcome<LookupList> outcome = LookupList::parse(bytes);
        QVERIFY(!outcome.result.has_value());
        QCOMPARE(textOf(outcome), expected);
    }

    void noPrefixOfAListIsTakenForAList()
    {
        const QByteArray bytes(R"({"lookups": [{"id": "A", "label": "a"}]})");
        for (int size = 0; size < bytes.size(); ++size) {
            const Outcome<LookupList> outcome = LookupList::parse(bytes.left(size));
            QVERIFY(!outcome.result.has_value());
            QVERIFY(outcome.problem.message.contains(QStringLiteral("expected")));
        }
        QVERIFY(LookupList::parse(bytes).result.has_value());
    }

    void filesAreRead()
    {
        const QTemporaryDir folder;
        QFile file(folder.filePath(QStringLiteral("lookups.json")));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(R"([{"id": "A", "label": "a"}])");
        file.close();
        QCOMPARE(textOf(LookupList::readFile(file.fileName())), QString("[A-a]"));
        QCOMPARE(textOf(LookupList::readFile(folder.filePath(QStringLiteral("none.json")))),
            QString("0:0 cannot be read: No such file or directory"));
        QCOMPARE(textOf(LookupList::readFile(folder.path())),
            QString("0:0 cannot be read: it is a folder; name a file"));
    }
};

QTEST_APPLESS_MAIN(tst_LookupList)
#include "tst_LookupList.moc"
