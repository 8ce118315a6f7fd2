#include "tests/sources/SourceReading.h"

#include <QFile>
#include <QTemporaryDir>

using namespace tessel::sources;

namespace tessel::test {

SourceOutcome readingOf(const QByteArray &bytes, const QString &name, const ReadOptions &options)
{
    const QTemporaryDir folder;
    QFile file(folder.filePath(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("fixture: %s cannot be written", qPrintable(name));
    file.close();
    return readSource(file.fileName(), options);
}

SourceOutcome readingOf(const Table &table, const FileForm &form, const ReadOptions &options)
{
    return readingOf(fileOf(table, form), QStringLiteral("survey.") + endingOf(form.kind), options);
}

QString textOf(const TDmSourceField &field)
{
    QString text = QStringLiteral("%1 %2.%3").arg(field.fieldType).arg(field.size).arg(field.decimals);
    const auto add = [&text](const char *name, const QString &part) {
        if (!part.isEmpty())
            text += QLatin1Char(' ') + QLatin1String(name) + QLatin1Char(' ') + part;
    };
    add("from", field.rangeMin);
    add("to", field.rangeMax);
    add("missing", field.missing);
    add("notapp", field.notApp);
    if (!field.categories.isEmpty())
        text += QStringLiteral(" {%1}").arg(
            QString(field.categories).replace(QLatin1Char('\t'), QLatin1Char('|')));
    return text;
}

QStringList fieldsOf(const SourceOutcome &outcome)
{
    if (!outcome.result)
        return {QStringLiteral("problem: ") + outcome.problem.message};
    QStringList lines;
    for (const auto &field : outcome.result->fields)
        lines << field->name + QStringLiteral(": ") + textOf(*field);
    return lines;
}

QString fieldOf(const SourceOutcome &outcome, const QString &name)
{
    if (!outcome.result)
        return fieldsOf(outcome).first();
    for (const auto &field : outcome.result->fields)
        if (field->name == name)
            return textOf(*field);
    return QStringLiteral("no field is named ") + name;
}

QStringList remarksOf(const SourceOutcome &outcome)
{
    QStringList lines;
    if (outcome.result)
        for (const SourceRemark &remark : outcome.result->remarks)
            lines << remark.sentence();
    return lines;
}

QString problemOf(const SourceOutcome &outcome)
{
    return outcome.result ? QStringLiteral("read") : outcome.problem.message;
}

QStringList allOf(const SourceOutcome &outcome)
{
    if (!outcome.result)
        return fieldsOf(outcome);
    const SourceFields &source = *outcome.result;
    QStringList lines{QStringLiteral("%1, %2, \"%3\", %4 of %5 records")
                          .arg(source.format, source.encoding, source.title)
                          .arg(source.rowsRead)
                          .arg(source.rows)};
    for (const auto &field : source.fields)
        lines << QStringLiteral("%1 %2 \"%3\" %4 [%5] %6")
                     .arg(field->relativePosition)
                     .arg(field->name, field->label, field->dataProviderType, field->selection,
                         textOf(*field));
    return lines + remarksOf(outcome);
}

} // namespace tessel::test
