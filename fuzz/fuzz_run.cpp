// Any bytes as a run configuration: parsed, read and written by the library alone. The third text is the
// second.

#include "business/RunCreationBusiness.h"
#include "documents/DocumentFile.h"
#include "fuzz/support/Desk.h"
#include "fuzz/support/Expect.h"
#include "model/Config.h"

#include <QJsonObject>

#include <memory>

using tessel::fuzz::expect;
using tessel::fuzz::expectSame;

namespace {

QJsonDocument rewritten(const QJsonObject &document)
{
    RunCreationBusiness business;
    const std::unique_ptr<Config> config(
        business.recorrerNodosEntitiesJsonYCargaEstructuraConfig(document.toVariantMap()));
    return business.exportConfigToJson(config.get());
}

/// What every written configuration has, whatever was read.
void expectSections(const QJsonObject &run)
{
    expect(run.size() == 4, "a run has four keys");
    expect(run.value(QStringLiteral("type")) == QLatin1String("config"), "a run says that it is one");
    expect(run.value(QStringLiteral("database")).isObject(), "a run has a database");
    expect(run.value(QStringLiteral("options")).isObject(), "a run has options");
    expect(run.value(QStringLiteral("entities")).isArray(), "a run has entities");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    tessel::fuzz::openDesk();
    const QByteArray bytes(reinterpret_cast<const char *>(data), int(size));
    const auto parsed = tessel::documents::parseObject(bytes);
    if (!parsed.result)
        return 0;
    const QJsonDocument first = rewritten(*parsed.result);
    expectSections(first.object());
    const QByteArray second = rewritten(QJsonDocument::fromJson(first.toJson()).object()).toJson();
    const QByteArray third = rewritten(QJsonDocument::fromJson(second).object()).toJson();
    expectSame(QString::fromUtf8(third), QString::fromUtf8(second), "writing a run again changes it");
    return 0;
}
