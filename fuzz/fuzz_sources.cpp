// Any bytes as a file with data, of the format that this program was built for: its header alone, with its
// records, and with another encoding where the reader says that one may help. What was read can be shown,
// dragged and used.

#include "business/models/DatasetPropertiesFieldsModel.h"
#include "business/models/VariableDiccionaryModel.h"
#include "business/models/detail/FieldTransfer.h"
#include "fuzz/support/Desk.h"
#include "fuzz/support/Expect.h"
#include "fuzz/support/MemoryFile.h"
#include "model/TDmEntity.h"
#include "model/TDmVariable.h"
#include "model/ValueLabelElement.h"
#include "sources/DeclaredCodes.h"

#ifdef TESSEL_FUZZ_FORMAT
#include "sources/StatisticalReader.h"
#else
#include "sources/CsvReader.h"
#endif

namespace sources = tessel::sources;
using namespace tessel::fuzz;

namespace {

sources::SourceOutcome readWith(const QString &file, const sources::ReadOptions &options)
{
#ifdef TESSEL_FUZZ_FORMAT
    return sources::readStatistical(file, sources::StatisticalFormat::TESSEL_FUZZ_FORMAT, options);
#else
    return sources::readCsv(file, options);
#endif
}

void expectField(const TDmSourceField &field)
{
    const QStringList types = {QString(), "STRING", "REAL", "INTEGER"};
    expect(types.contains(field.fieldType), "a field has an unknown type");
    expect(field.size >= 0 && field.decimals >= 0, "a field has a negative size");
    expect(field.relativePosition >= 0, "a field begins before its record");
}

/// The fields as the catalogue shows and drags them, and as variables.
void useFields(const sources::SourceFields &read)
{
    QList<TDmSourceField *> list;
    for (const auto &field : read.fields) {
        expect(field != nullptr, "a field is null");
        expectField(*field);
        list.append(field.get());
    }
    const DatasetPropertiesFieldsModel catalogue(nullptr, &list, QStringLiteral("*"));
    TDmEntity entity;
    VariableDiccionaryModel table(nullptr, &entity, &entity);
    for (int row = 0; row < list.size(); ++row) {
        const std::unique_ptr<QMimeData> data(catalogue.mimeData({catalogue.index(row, 0, {})}));
        const QStringList texts = tessel::detail::FieldTransfer::unwrapped(*data);
        expect(texts.size() == 1, "one field is not dragged as one text");
        const std::unique_ptr<TDmVariable> variable(table.getVariableFromJsonDrop(texts.first()));
        sources::DeclaredCodes::of(*list.at(row)).giveTo(*variable);
        for (const ValueLabelElement *label : qAsConst(*variable->getValueLabelElementList()))
            expect(!label->getValue().isEmpty(), "a category without a code was offered");
    }
}

/// All that is promised of \a outcome, whatever was read.
void expectOutcome(const sources::SourceOutcome &outcome)
{
    expect(!outcome.isCancelled, "nobody cancelled");
    if (!outcome.result) {
        expect(!outcome.problem.message.isEmpty(), "a file is refused without a reason");
        return;
    }
    expect(!outcome.canRetryWithEncoding, "a file that was read is to be read again");
    for (const sources::SourceRemark &remark : outcome.result->remarks)
        expect(!remark.reason.isEmpty(), "a remark says nothing");
    useFields(*outcome.result);
}

QStringList namesOf(const sources::SourceFields &read)
{
    QStringList names;
    for (const auto &field : read.fields)
        names.append(field->name);
    return names;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    openDesk();
    static const MemoryFile file("source");
    file.write(QByteArray(reinterpret_cast<const char *>(data), int(size)));

    sources::ReadOptions options;
#ifdef TESSEL_FUZZ_CATALOGUE_OF
    const QString name = QStringLiteral(TESSEL_FUZZ_CATALOGUE_OF);
    options.catalogue = file.name();
#else
    const QString name = file.name();
#endif
    sources::SourceOutcome outcome = readWith(name, options);
    expectOutcome(outcome);
    if (outcome.canRetryWithEncoding) {
        options.encoding = QStringLiteral("WINDOWS-1252");
        outcome = readWith(name, options);
        expectOutcome(outcome);
    }
    options.rows = 1000;
    const sources::SourceOutcome withRows = readWith(name, options);
    expectOutcome(withRows);
    if (outcome.result && withRows.result)
        expect(namesOf(*outcome.result) == namesOf(*withRows.result), "the records change the fields' names");
    return 0;
}
