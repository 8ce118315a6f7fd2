#pragma once

#include "sources/CsvReader.h"

#include <QBuffer>
#include <QtTest>

namespace tessel::test {

/// What is read of a file that holds \a bytes.
inline sources::SourceOutcome outcomeOf(QByteArray bytes, const sources::ReadOptions &options = {})
{
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    return sources::readCsv(buffer, options);
}

/// The bytes of a file that holds \a text in UTF-16, marked as such.
inline QByteArray utf16(const QString &text, bool isBigEndian)
{
    QByteArray bytes(isBigEndian ? "\xfe\xff" : "\xff\xfe");
    for (const QChar c : text) {
        const char high = char(c.unicode() >> 8);
        const char low = char(c.unicode() & 0xff);
        bytes.append(isBigEndian ? high : low).append(isBigEndian ? low : high);
    }
    return bytes;
}

/// What \a source has to remark, a sentence each.
inline QStringList remarksOf(const sources::SourceFields &source)
{
    QStringList sentences;
    for (const sources::SourceRemark &remark : source.remarks)
        sentences.append(remark.sentence());
    return sentences;
}

} // namespace tessel::test
