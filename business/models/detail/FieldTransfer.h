#pragma once

#include <QDataStream>
#include <QMimeData>
#include <QSet>
#include <QString>
#include <QStringList>

namespace tessel::detail {

/// Internal: how fields travel from a catalogue to the variable table: one text per dragged cell, each a JSON
/// object, one after the other in a QDataStream, without count or terminator.
class FieldTransfer {
public:
    FieldTransfer() = delete;

    static QString mimeType() { return QStringLiteral("application/vnd.text.list"); }

    /// A new object that the drag takes over.
    static QMimeData *wrapped(const QStringList &texts)
    {
        QByteArray payload;
        QDataStream stream(&payload, QIODevice::WriteOnly);
        for (const QString &text : texts)
            stream << text;
        auto *data = new QMimeData;
        data->setData(mimeType(), payload);
        return data;
    }

    /// The texts in \a data, each once: a row dragged with several cells comes several times. A text that is
    /// cut off ends the list; what stood before it counts.
    static QStringList unwrapped(const QMimeData &data)
    {
        QStringList texts;
        QSet<QString> known;
        QDataStream stream(data.data(mimeType()));
        while (!stream.atEnd()) {
            QString text;
            stream >> text;
            if (stream.status() != QDataStream::Ok)
                break;
            if (known.contains(text))
                continue;
            known.insert(text);
            texts.append(text);
        }
        return texts;
    }
};

} // namespace tessel::detail
