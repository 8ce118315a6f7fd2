// A field's categories text, from the source's catalogue to a variable's value labels: the list that is
// dragged, the labels made of it, and the same by way of a whole drag.

#include "business/models/DatasetPropertiesFieldsModel.h"
#include "business/models/VariableDiccionaryModel.h"
#include "business/models/detail/FieldTransfer.h"
#include "fuzz/support/Desk.h"
#include "fuzz/support/Expect.h"
#include "model/TDmEntity.h"
#include "model/TDmVariable.h"
#include "model/ValueLabelElement.h"

#include <memory>

using tessel::fuzz::expect;
using tessel::fuzz::expectSame;

namespace {

using Labels = QList<ValueLabelElement *>;

/// What \a text says, read another way than the catalogue does: one line per category, code and label parted
/// by a tab.
QString expectedOf(const QString &text)
{
    QString lines;
    const QStringList parts = text.split(QLatin1Char('\t'), Qt::SkipEmptyParts);
    for (const QString &part : parts) {
        QStringList pieces = part.split(QLatin1Char(' '));
        const QString code = pieces.takeFirst().trimmed();
        lines += code + QLatin1Char('\t') + pieces.join(QLatin1Char(' ')).trimmed() + QLatin1Char('\n');
    }
    return lines;
}

QString writtenOf(const Labels &labels)
{
    QString lines;
    for (const ValueLabelElement *label : labels)
        lines += label->getValue() + QLatin1Char('\t') + label->getLabel() + QLatin1Char('\n');
    return lines;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    tessel::fuzz::openDesk();
    TDmSourceField field;
    field.name = QStringLiteral("FIELD");
    field.categories = QString::fromUtf8(reinterpret_cast<const char *>(data), int(size));
    QList<TDmSourceField *> fields = {&field};
    DatasetPropertiesFieldsModel catalogue(nullptr, &fields, QStringLiteral("*"));
    TDmEntity entity;
    VariableDiccionaryModel table(nullptr, &entity, &entity);
    const QString expected = expectedOf(field.categories);

    const QVariant list = catalogue.laodDataCategories(&field).toVariantList();
    const std::unique_ptr<Labels> labels(table.loadCategories(list));
    expectSame(writtenOf(*labels), expected, "a category is read differently");
    qDeleteAll(*labels);

    const std::unique_ptr<QMimeData> dragged(catalogue.mimeData({catalogue.index(0, 0, {})}));
    const QStringList texts = tessel::detail::FieldTransfer::unwrapped(*dragged);
    expect(texts.size() == 1, "one cell is dragged as one text");
    const std::unique_ptr<TDmVariable> variable(table.getVariableFromJsonDrop(texts.first()));
    expectSame(writtenOf(*variable->getValueLabelElementList()), expected, "a drag changes a category");
    return 0;
}
