#include "editor/sources/LookupList.h"

#include "documents/ParseFault.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace tessel::editor {
namespace {

using documents::Outcome;

Outcome<LookupList> failed(const QString &message) { return {std::nullopt, {message}}; }

QString expectation()
{
    return LookupList::tr(
        "expected a list of lookups, [{\"id\": \"...\", \"label\": \"...\"}, ...], or an object "
        "with such a list under \"lookups\"");
}

/// Whether \a bytes are meant to be what is expected, so that it pays to say where they go wrong.
bool beginsAsJson(const QByteArray &bytes)
{
    const QByteArray text = bytes.mid(bytes.startsWith("\xef\xbb\xbf") ? 3 : 0).trimmed();
    return text.startsWith('[') || text.startsWith('{');
}

bool isUtf16(const QByteArray &bytes) { return bytes.startsWith("\xff\xfe") || bytes.startsWith("\xfe\xff"); }

Outcome<LookupList> listOf(const QJsonArray &array)
{
    LookupList list;
    for (const QJsonValue &value : array) {
        const QJsonObject object = value.toObject();
        const QJsonValue id = object.value(QLatin1String("id"));
        const QJsonValue label = object.value(QLatin1String("label"));
        if (id.toString().isEmpty() || !label.isString()) {
            return failed(LookupList::tr(
                "lookup %1 is not as expected; expected an object with the texts \"id\", which "
                "must not be empty, and \"label\"")
                              .arg(list.lookups.size() + 1));
        }
        list.lookups.push_back(std::make_unique<TDmLookup>());
        list.lookups.back()->id = id.toString();
        list.lookups.back()->label = label.toString();
    }
    return {std::move(list), {}};
}

} // namespace

Outcome<LookupList> LookupList::parse(const QByteArray &bytes)
{
    if (isUtf16(bytes))
        return failed(tr("expected text in UTF-8, found UTF-16; save the file in UTF-8"));
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(bytes, &error);
    if (document.isNull() && beginsAsJson(bytes))
        return {std::nullopt, documents::faultOf(bytes, error)};
    if (document.isArray())
        return listOf(document.array());
    const QJsonValue under = document.object().value(QLatin1String("lookups"));
    return under.isArray() ? listOf(under.toArray()) : failed(expectation());
}

Outcome<LookupList> LookupList::readFile(const QString &name)
{
    const Outcome<QByteArray> bytes = documents::readFile(name);
    return bytes.result ? parse(*bytes.result) : Outcome<LookupList>{std::nullopt, bytes.problem};
}

} // namespace tessel::editor
