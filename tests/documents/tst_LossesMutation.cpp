#include "documents/DocumentForm.h"
#include "documents/Losses.h"
#include "tests/support/Json.h"

#include <QtTest>

using namespace tessel::documents;

namespace {

/// A dictionary in normal form with every key that is written, none of them at a value that its absence
/// means.
const char *const kDictionary =
    "{'alias': 'a', 'codeVar': 'c', 'documentation': 'd', 'label': 'l', 'labelVar': 'lv', 'name': 'n',"
    " 'selectable': true, 'virtual': true, 'weightVar': 'w', 'entities': ["
    "  {'alias': 'a', 'name': 'E', 'selectable': true, 'virtual': true, 'variables': ["
    "   {'alias': 'a', 'documentation': 'd', 'group': 'g', 'label': 'l', 'name': 'V', 'type': 'integer',"
    "    'tag': 3, 'notapp': 8, 'missing': 9, 'metadata': {'field': 'f', 'length': 2, 'lookup': true, "
    "'start': 4,"
    "    'range': [{'min': 1, 'max': 2.5}, {'min': 7, 'max': 8}]},"
    "    'valueLabels': [{'label': 'one', 'value': 1}, {'label': 'two', 'value': 2}]},"
    "   {'name': 'S', 'type': 'string', 'size': 4, 'notapp': 1, 'missing': 2, 'metadata': {'field': 'g'},"
    "    'valueLabels': [{'label': 'x', 'value': 'X'}]},"
    "   {'name': 'R', 'type': 'real', 'notapp': 1, 'missing': 2, 'metadata': {'start': 1},"
    "    'valueLabels': [{'label': 'half', 'value': 0.5}]}],"
    "   'entities': [{'name': 'F', 'label': 'below', 'selectable': true, 'virtual': true}]},"
    "  {'name': 'G', 'documentation': 'last', 'selectable': true, 'virtual': true}]}";

const char *const kRun =
    "{'type': 'config', 'database': {'name': 'n', 'folder': 'f', 'sourceFile': 's'},"
    " 'options': {'createNoRanges': true, 'createNotAppMissingInRange': true}, 'entities': ["
    "  {'name': 'A', 'recType': 'r', 'allVariables': true, 'createCompound': true,"
    "   'createSDC': true, 'checkSequence': false, 'variables': ['V', 'W']},"
    "  {'name': 'B', 'allVariables': true, 'createCompound': true}]}";

/// The value at \a path, a pointer's steps.
QJsonValue valueAt(const QJsonValue &value, const QStringList &path)
{
    if (path.isEmpty())
        return value;
    const QStringList rest = path.mid(1);
    return valueAt(
        value.isArray() ? value.toArray().at(path.first().toInt()) : value.toObject().value(path.first()),
        rest);
}

/// \a value with \a changed at \a path instead, or without what stands there when \a changed is undefined.
QJsonValue with(const QJsonValue &value, const QStringList &path, const QJsonValue &changed)
{
    if (path.isEmpty())
        return changed;
    const QJsonValue inner = with(valueAt(value, {path.first()}), path.mid(1), changed);
    if (value.isObject()) {
        QJsonObject object = value.toObject();
        if (inner.isUndefined())
            object.remove(path.first());
        else
            object.insert(path.first(), inner);
        return object;
    }
    QJsonArray array = value.toArray();
    array.replace(path.first().toInt(), inner);
    return array;
}

/// The paths of all texts, numbers and flags in \a value.
QList<QStringList> leavesOf(const QJsonValue &value, const QStringList &path = {})
{
    QList<QStringList> leaves;
    if (value.isObject()) {
        const QJsonObject object = value.toObject();
        for (auto entry = object.constBegin(); entry != object.constEnd(); ++entry)
            leaves += leavesOf(entry.value(), path + QStringList{entry.key()});
        return leaves;
    }
    if (value.isArray()) {
        for (int i = 0; i < value.toArray().size(); ++i)
            leaves += leavesOf(value.toArray().at(i), path + QStringList{QString::number(i)});
        return leaves;
    }
    return {path};
}

/// Another value of the same kind.
QJsonValue otherThan(const QJsonValue &value)
{
    if (value.isBool())
        return !value.toBool();
    if (value.isDouble())
        return value.toDouble() + 1;
    return QJsonValue(value.toString() + QLatin1Char('x'));
}

QStringList pathsOf(const QVector<Loss> &losses)
{
    QStringList paths;
    for (const Loss &loss : losses)
        paths.append(loss.path);
    return paths;
}

} // namespace

class tst_LossesMutation : public QObject {
    Q_OBJECT

private slots:
    void oneValueThatDiffersIsListedAlone_data()
    {
        QTest::addColumn<QJsonObject>("document");
        QTest::addColumn<QStringList>("path");
        for (const char *text : {kDictionary, kRun}) {
            const QJsonObject document =
                QJsonDocument::fromJson(normalForm(QJsonObject::fromVariantMap(tessel::test::objectOf(text))))
                    .object();
            const QList<QStringList> leaves = leavesOf(document);
            for (const QStringList &path : leaves)
                QTest::addRow("%s /%s", text == kRun ? "run" : "dictionary",
                    qUtf8Printable(path.join(QLatin1Char('/'))))
                    << document << path;
        }
    }

    void oneValueThatDiffersIsListedAlone()
    {
        QFETCH(QJsonObject, document);
        QFETCH(QStringList, path);
        const QString pointer = QLatin1Char('/') + path.join(QLatin1Char('/'));
        const QJsonValue value = valueAt(document, path);
        QCOMPARE(pathsOf(lossesBetween(document, document)), QStringList());

        const QVector<Loss> changed =
            lossesBetween(document, with(document, path, otherThan(value)).toObject());
        QCOMPARE(pathsOf(changed), QStringList{pointer});
        QCOMPARE(changed.first().kind, Loss::Changed);
        QVERIFY(!changed.first().before.isEmpty() && !changed.first().after.isEmpty());
        QVERIFY(changed.first().before != changed.first().after);

        if (valueAt(document, path.mid(0, path.size() - 1)).isArray())
            return;
        const QVector<Loss> removed =
            lossesBetween(document, with(document, path, QJsonValue(QJsonValue::Undefined)).toObject());
        // Written without it, a reader still sees what it stood for.
        const QStringList meant{QStringLiteral("fileName"), QStringLiteral("local")};
        QCOMPARE(pathsOf(removed), meant.contains(path.last()) ? QStringList() : QStringList{pointer});
        if (!removed.isEmpty())
            QCOMPARE(removed.first().kind, Loss::Dropped);
    }

    void aWholeItemThatIsGoneIsListedByItsValues()
    {
        const QJsonObject document = QJsonDocument::fromJson(
            normalForm(QJsonObject::fromVariantMap(tessel::test::objectOf(kDictionary))))
                                         .object();
        const QStringList variables{
            QStringLiteral("entities"), QStringLiteral("0"), QStringLiteral("variables")};
        QJsonArray fewer = valueAt(document, variables).toArray();
        fewer.removeLast();
        const QStringList paths =
            pathsOf(lossesBetween(document, with(document, variables, fewer).toObject()));
        QVERIFY(paths.contains(QStringLiteral("/entities/0/variables/2/name")));
        QVERIFY(paths.contains(QStringLiteral("/entities/0/variables/2/valueLabels/0/value")));
        for (const QString &path : paths)
            QVERIFY2(path.startsWith(QLatin1String("/entities/0/variables/2/")), qPrintable(path));
    }
};

QTEST_APPLESS_MAIN(tst_LossesMutation)
#include "tst_LossesMutation.moc"
