#pragma once

#include <QByteArray>
#include <QJsonObject>
#include <QString>
#include <QVector>

/// What a document holds that reading it and writing it again does not keep.
namespace tessel::documents {

/// One value that writing would lose or change.
struct Loss {
    enum Kind {
        Dropped, ///< Nothing is written in its place.
        Changed, ///< Something else is written.
        Repeated, ///< A key that stands more than once in one object; one of its values is kept.
        Irregular, ///< Text that Qt's parser takes and JSON does not allow; what follows was not looked at.
    };

    Kind kind = Dropped;
    QString path; ///< JSON pointer to the value in the document as it is.
    QString place; ///< The entity, variable or section that it belongs to, for people; may be empty.
    QString before; ///< The value as compact JSON, cut when long; empty for a repeated key.
    QString after; ///< What is written instead, as compact JSON; empty unless changed.

    /// One sentence: the value and what becomes of it.
    QString sentence() const;
};

/// \a key as one step of a JSON pointer, without the slash before it.
QString pointerStep(QString key);

/// The values of \a document that are gone or different in \a written, which is the same document read and
/// written again, in document order. Not listed is what makes no difference to a reader: the order of keys,
/// an item that stands alone and becomes a list of one, another name of the child list, a key that holds what
/// its absence means, 2.0 for 2, and a code that changes between number and text, or loses zeros before it,
/// under a numeric type.
QVector<Loss> lossesBetween(const QJsonObject &document, const QJsonObject &written);

/// All that is lost or changed when \a bytes, which hold \a document, are read and written as \a written: the
/// above, and what parsing alone drops, keys given twice and numbers with more digits than a number can hold.
QVector<Loss> lossesOf(const QByteArray &bytes, const QJsonObject &document, const QByteArray &written);

} // namespace tessel::documents
