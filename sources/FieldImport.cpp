#include "sources/FieldImport.h"

#include "business/Constants.h"
#include "business/models/CsvPropertiesModel.h"
#include "business/models/DatasetPropertiesFieldsModel.h"
#include "business/models/VariableDiccionaryModel.h"
#include "business/models/detail/FieldTransfer.h"
#include "sources/DeclaredCodes.h"

#include <QCoreApplication>

#include <algorithm>

namespace tessel::sources {
namespace {

/// Words for what happens to codes.
class CodeTexts {
    Q_DECLARE_TR_FUNCTIONS(tessel::sources::CodeTexts)

public:
    /// What \a codes change in \a variable; empty when nothing.
    static QString change(const DeclaredCodes &codes, const TDmVariable &variable)
    {
        const bool isMissing = codes.missing && *codes.missing != variable.getMissing();
        const bool isNotApplicable = codes.notApplicable && *codes.notApplicable != variable.getNotappl();
        if (isMissing && isNotApplicable)
            return tr("as the source declares, the missing code is %1 instead of %2 and the not-applicable "
                      "code is %3 instead of %4")
                .arg(*codes.missing)
                .arg(variable.getMissing())
                .arg(*codes.notApplicable)
                .arg(variable.getNotappl());
        if (isMissing)
            return tr("as the source declares, the missing code is %1 instead of %2")
                .arg(*codes.missing)
                .arg(variable.getMissing());
        if (isNotApplicable)
            return tr("as the source declares, the not-applicable code is %1 instead of %2")
                .arg(*codes.notApplicable)
                .arg(variable.getNotappl());
        return QString();
    }
};

/// What a drag of each row of \a catalogue carries. One row at a time: fields that are equal to the letter
/// would be taken for one field.
template<typename Catalogue>
QStringList transferTexts(const Catalogue &catalogue)
{
    QStringList texts;
    for (int row = 0; row < catalogue.rowCount({}); ++row) {
        const std::unique_ptr<QMimeData> data(catalogue.mimeData({catalogue.index(row, 0, {})}));
        texts += detail::FieldTransfer::unwrapped(*data);
    }
    return texts;
}

QStringList transferTexts(SourceFields &source)
{
    QList<TDmSourceField *> fields;
    for (const auto &field : source.fields)
        fields.append(field.get());
    if (hasTypes(source))
        return transferTexts(DatasetPropertiesFieldsModel(nullptr, &fields, QStringLiteral("*")));
    return transferTexts(CsvPropertiesModel(nullptr, &fields));
}

} // namespace

bool hasTypes(const SourceFields &source)
{
    return std::any_of(source.fields.cbegin(), source.fields.cend(),
        [](const auto &field) { return !field->fieldType.isEmpty(); });
}

int fieldsWithoutRange(const SourceFields &source)
{
    return int(std::count_if(source.fields.cbegin(), source.fields.cend(), [](const auto &field) {
        return field->fieldType != constants::kTypeString && field->rangeMin.isEmpty()
            && field->rangeMax.isEmpty();
    }));
}

std::vector<ImportedField> importFields(SourceFields &source)
{
    VariableDiccionaryModel table(nullptr, nullptr, nullptr);
    const QStringList texts = transferTexts(source);
    std::vector<ImportedField> imported;
    imported.reserve(source.fields.size());
    for (int i = 0; i < texts.size(); ++i) {
        const TDmSourceField &field = *source.fields[std::size_t(i)];
        std::unique_ptr<TDmVariable> variable(table.getVariableFromJsonDrop(texts.at(i)));
        const DeclaredCodes codes = DeclaredCodes::of(field);
        const QString change = CodeTexts::change(codes, *variable);
        codes.giveTo(*variable);
        imported.push_back({std::move(variable), field.name, change});
    }
    return imported;
}

} // namespace tessel::sources
