#include "editor/views/EncodingBox.h"

#include "sources/SourceReader.h"

#include <QAbstractItemView>
#include <QLineEdit>

namespace tessel::editor {

EncodingBox::EncodingBox(QWidget *parent)
    : QComboBox(parent)
{
    setEditable(true);
    setInsertPolicy(NoInsert);
    setSizeAdjustPolicy(AdjustToMinimumContentsLengthWithIcon);
    setMinimumContentsLength(12);
    setToolTip(tr("The encoding of the texts in the file; a choice, or a name and Return, reads it again."));
    setAccessibleName(tr("Encoding of the dataset"));
    addItem(tr("Automatic"));
    addItems(sources::commonEncodings());
    lineEdit()->setAccessibleName(accessibleName());
    view()->setAccessibleName(accessibleName());
    // Files are dropped on the pane.
    lineEdit()->setAcceptDrops(false);
    connect(this, QOverload<int>::of(&QComboBox::activated), this, &EncodingBox::choose);
    connect(lineEdit(), &QLineEdit::returnPressed, this, &EncodingBox::choose);
    connect(lineEdit(), &QLineEdit::editingFinished, this, [this] { setEncoding(used); });
}

void EncodingBox::setEncoding(const QString &encoding)
{
    used = encoding;
    const int found = encoding.isEmpty() ? 0 : findText(encoding, Qt::MatchFixedString);
    setCurrentIndex(found);
    if (found < 0)
        setEditText(encoding);
}

void EncodingBox::choose()
{
    const QString text = currentText().trimmed();
    const bool isAutomatic = text.compare(itemText(0), Qt::CaseInsensitive) == 0;
    const QString encoding = isAutomatic ? QString() : text;
    // Return in the field arrives more than once.
    if (encoding.compare(used, Qt::CaseInsensitive) != 0)
        emit encodingChosen(encoding);
}

} // namespace tessel::editor
