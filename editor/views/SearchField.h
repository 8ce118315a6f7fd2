#pragma once

#include <QWidget>

class QAction;
class QLabel;
class QSortFilterProxyModel;

namespace tessel::editor {

class SearchLine;

/// A search field over a proxy: plain text, or a pattern when its switch is on; letter case does not matter.
/// Shows how many rows are left of how many, and a bad pattern in red. Borrows the proxy.
class SearchField : public QWidget {
    Q_OBJECT

public:
    /// \a purpose stands in the empty field and is its accessible name ("Search variables").
    SearchField(QSortFilterProxyModel &proxy, const QString &purpose, QWidget *parent = nullptr);

    QString text() const;
    QString countText() const;
    bool isPatternValid() const;

public slots:
    /// Puts the cursor into the field.
    void activate();
    void clear();

private:
    void count();

    QSortFilterProxyModel &proxy;
    SearchLine *field;
    QAction *patternSwitch;
    QLabel *counter;
};

} // namespace tessel::editor
