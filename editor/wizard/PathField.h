#pragma once

#include <QString>
#include <QWidget>

class QLineEdit;
class QPushButton;

namespace tessel::editor {

/// A line for the name of a folder or file, and a button that looks for one.
class PathField : public QWidget {
    Q_OBJECT

public:
    enum class Kind { Folder, File };

    /// \a browseText is the button's, with its mnemonic; \a dialogTitle that of the dialog, and the button's
    /// accessible name. Line and button are named \a objectName with "Line" and "Browse" behind.
    PathField(Kind kind, const QString &objectName, const QString &browseText, const QString &dialogTitle,
        QWidget *parent = nullptr);

    QLineEdit *line() const { return lineEdit; }

    /// Where to look while the line names no place that exists.
    void setStartFolder(const QString &folder) { startFolder = folder; }

private:
    void browse();
    QString startPlace() const;

    const Kind kind;
    QLineEdit *lineEdit;
    QPushButton *button;
    QString title;
    QString startFolder;
};

} // namespace tessel::editor
