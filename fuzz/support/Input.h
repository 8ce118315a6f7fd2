#pragma once

#include <QByteArray>
#include <QString>
#include <QVariant>

#include <fuzzer/FuzzedDataProvider.h>

namespace tessel::fuzz {

/// The fuzzer's bytes, taken apart. Numbers come from the end and texts from the beginning, so that a seed is
/// a readable text with a few bytes behind it; when the bytes are used up, all is zero and empty.
class Input {
public:
    Input(const std::uint8_t *data, std::size_t size)
        : bytes(data, size)
    {
    }

    bool isAtEnd() { return bytes.remaining_bytes() == 0; }
    bool flag() { return bytes.ConsumeBool(); }

    /// A number from \a least to \a most.
    int number(int least, int most) { return bytes.ConsumeIntegralInRange(least, most); }

    /// Any int, those at the limits more often than chance would have it.
    int anyInt();

    /// A text of at most \a most bytes, read as UTF-8.
    QString text(int most = 24);

    /// What a view could hand over, and what it could not: texts, names that clash, numbers, lists, nothing.
    QVariant value();

    QByteArray rest();

private:
    double anyDouble();

    FuzzedDataProvider bytes;
};

} // namespace tessel::fuzz
