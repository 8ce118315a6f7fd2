#pragma once

#include <QByteArray>

#include <array>

namespace tessel::sources {

/// Finds out what separates the cells of a CSV file: the candidate that its first record has most of outside
/// quotation marks, which open and close at any candidate. Lines of nothing but blanks are passed over.
class CsvSeparator {
public:
    /// Comma, semicolon, tab and bar, in the order in which they win when a record has as many of the one as
    /// of the other.
    static constexpr std::array<char, 4> kCandidates{',', ';', '\t', '|'};

    /// Looks at more of the text, from its start on.
    void look(const QByteArray &text);

    /// Whether the first record has ended: more text would not change anything.
    bool isCertain() const { return isEnded; }

    /// The separator, as far as it can be told; a null byte when there is none.
    char found() const;

private:
    enum class Place { Line, Cell, Plain, Quoted, Quote, BlankBehindQuote };

    void step(char c);
    void pass(char c);

    std::array<qint64, kCandidates.size()> counts{};
    Place place = Place::Line;
    bool isEnded = false;
};

} // namespace tessel::sources
