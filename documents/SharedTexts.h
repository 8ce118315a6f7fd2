#pragma once

#include <QString>

#include <array>
#include <string_view>

namespace tessel::documents {

/// Gives texts that come again and again (codes, group and type names, labels such as "Yes") as copies of one
/// QString, which share its memory. Remembers a fixed number of them, the latest ones: texts that come once
/// push each other out and cost nothing more.
/// Borrows the bytes that it is given, which must outlive it. Throws Refused as textOfRaw() does.
class SharedTexts {
public:
    /// What textOfRaw() gives for \a raw.
    QString text(std::string_view raw);

    /// The digits of \a number.
    QString digits(qint64 number);

private:
    struct Entry {
        std::string_view raw;
        QString text;
    };

    std::array<Entry, 2048> recent;
    std::array<QString, 1024> small;
};

} // namespace tessel::documents
