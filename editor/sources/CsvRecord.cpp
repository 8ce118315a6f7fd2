#include "editor/sources/CsvRecord.h"

namespace tessel::editor {

CsvRecord::CsvRecord(const QString &text, int start, const QString &separators)
    : separatorCounts(separators.size(), 0)
    , end(text.size())
{
    constexpr QLatin1Char quote('"');
    QString field;
    bool isAtStart = true;
    for (int i = start; i < text.size(); ++i) {
        const QChar c = text.at(i);
        if (isQuoteOpen) {
            const bool isDoubled = c == quote && i + 1 < text.size() && text.at(i + 1) == quote;
            if (c != quote || isDoubled)
                field.append(c);
            else
                isQuoteOpen = false;
            i += isDoubled ? 1 : 0;
            continue;
        }
        if (c == QLatin1Char('\r') || c == QLatin1Char('\n')) {
            isEnded = true;
            end = i;
            break;
        }
        const int separator = separators.indexOf(c);
        if (separator >= 0) {
            ++separatorCounts[separator];
            fields.append(field);
            field.clear();
            isAtStart = true;
            continue;
        }
        if (isAtStart && c == quote) {
            isQuoteOpen = true;
            isAtStart = false;
            field.clear();
            continue;
        }
        isAtStart = isAtStart && (c == QLatin1Char(' ') || c == QLatin1Char('\t'));
        field.append(c);
    }
    fields.append(field);
}

} // namespace tessel::editor
