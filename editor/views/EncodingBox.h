#pragma once

#include <QComboBox>

namespace tessel::editor {

/// The choice of the encoding in which a source is read: the source's own, one of the frequent ones, or
/// whatever is typed. A name that was typed counts when Return is pressed; one that is left is taken back.
class EncodingBox : public QComboBox {
    Q_OBJECT

public:
    explicit EncodingBox(QWidget *parent = nullptr);

    /// Shows \a encoding, empty for the source's own, as the one in use. Nothing is announced.
    void setEncoding(const QString &encoding);

signals:
    /// The user wants \a encoding, empty for the source's own, in place of the one in use. What is in use
    /// from now on is to be told by setEncoding().
    void encodingChosen(const QString &encoding);

private:
    void choose();

    QString used;
};

} // namespace tessel::editor
