#include "sources/CsvSeparator.h"

#include <algorithm>

namespace tessel::sources {

void CsvSeparator::look(const QByteArray &text)
{
    for (auto c = text.cbegin(); c != text.cend() && !isEnded; ++c)
        step(*c);
}

char CsvSeparator::found() const
{
    const auto most = std::max_element(counts.cbegin(), counts.cend());
    return *most == 0 ? '\0' : kCandidates.at(std::size_t(most - counts.cbegin()));
}

void CsvSeparator::step(char c)
{
    if (place == Place::Quoted) {
        place = c == '"' ? Place::Quote : Place::Quoted;
        return;
    }
    if (c == '\r' || c == '\n') {
        isEnded = place != Place::Line;
        return;
    }
    const auto candidate = std::find(kCandidates.cbegin(), kCandidates.cend(), c);
    if (candidate == kCandidates.cend()) {
        pass(c);
        return;
    }
    ++counts.at(std::size_t(candidate - kCandidates.cbegin()));
    place = Place::Cell;
}

/// Goes on behind \a c, which neither stands in quotation marks nor ends anything.
void CsvSeparator::pass(char c)
{
    const bool isAtStart = place == Place::Line || place == Place::Cell;
    const bool isBehindQuote = place == Place::Quote || place == Place::BlankBehindQuote;
    if (c == ' ') {
        place = isBehindQuote ? Place::BlankBehindQuote : place;
        return;
    }
    if (isAtStart) {
        place = c == '"' ? Place::Quoted : Place::Plain;
        return;
    }
    // A quotation mark with more of the cell behind it has not closed it.
    if (isBehindQuote)
        place = c == '"' && place == Place::BlankBehindQuote ? Place::Quote : Place::Quoted;
}

} // namespace tessel::sources
