#include "cli/Program.h"

#include <QJsonArray>
#include <QJsonObject>

using tessel::sources::ReadOptions;
using tessel::sources::SourceOutcome;

namespace {

/// The field that \a object describes.
std::unique_ptr<TDmSourceField> fieldOf(const QJsonObject &object)
{
    auto field = std::make_unique<TDmSourceField>();
    field->name = object["name"].toString();
    field->label = object["label"].toString();
    field->fieldType = object["type"].toString();
    field->size = object["size"].toInt();
    field->decimals = object["decimals"].toInt();
    field->rangeMin = object["min"].toString();
    field->rangeMax = object["max"].toString();
    field->missing = object["missing"].toString();
    field->notApp = object["notApp"].toString();
    field->categories = object["categories"].toString();
    return field;
}

/// A source that is described by a JSON object, so that tests can have any: its "fields", "remarks" and
/// "title", or the "problem" that it has. "told" makes a remark of the options that it was read with.
SourceOutcome readDescribed(const QString &file, const ReadOptions &options)
{
    SourceOutcome outcome;
    const auto document = tessel::documents::readObject(file);
    if (!document.result) {
        outcome.problem = document.problem;
        return outcome;
    }
    const QJsonObject object = *document.result;
    if (object.contains("problem")) {
        outcome.problem.message = object["problem"].toString();
        outcome.canRetryWithEncoding = object["retry"].toBool();
        return outcome;
    }
    tessel::sources::SourceFields source;
    source.title = object["title"].toString();
    for (const QJsonValue field : object["fields"].toArray())
        source.fields.push_back(fieldOf(field.toObject()));
    for (const QJsonValue remark : object["remarks"].toArray())
        source.remarks.append({remark["field"].toString(), remark["reason"].toString()});
    if (object["told"].toBool())
        source.remarks.append(
            {{}, QStringLiteral("encoding [%1], records %2").arg(options.encoding).arg(options.rows)});
    outcome.result = std::move(source);
    return outcome;
}

} // namespace

/// The command line with sources that are described instead of real ones.
int main(int argc, char **argv) { return tessel::cli::run(argc, argv, readDescribed); }
