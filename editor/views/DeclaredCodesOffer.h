#pragma once

#include "editor/views/NoticeBar.h"
#include "sources/DeclaredCodes.h"

#include <QList>

class QMimeData;
class TDmEntity;
class TDmVariable;

namespace tessel::editor {

class DictionaryDocument;

/// Offers to give new variables the codes for missing and not-applicable values that their source declares: a
/// drop derives such codes from the range instead. Hidden while there is nothing to offer, and gone as soon
/// as the variables are, or have these codes already. Changes nothing without being told to.
class DeclaredCodesOffer : public NoticeBar {
    Q_OBJECT

public:
    explicit DeclaredCodesOffer(DictionaryDocument &document, QWidget *parent = nullptr);

public slots:
    /// The new \a variables of \a entity were made of \a fields, as a catalogue sends them. They join those
    /// that are offered already.
    void consider(TDmEntity *entity, const QList<TDmVariable *> &variables, const QMimeData *fields);

signals:
    /// One sentence about what was done.
    void told(const QString &sentence);

private:
    struct Declaration {
        TDmEntity *entity;
        TDmVariable *variable;
        sources::DeclaredCodes codes;
    };

    QList<Declaration> present() const;
    QList<Declaration> differing() const;
    static QString difference(const Declaration &declaration);
    void refresh();
    void forget();
    void setCodes();

    DictionaryDocument &document;
    QList<Declaration> considered; ///< All variables of the drops, those without declared codes included.
};

} // namespace tessel::editor
