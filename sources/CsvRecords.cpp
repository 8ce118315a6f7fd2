#include "sources/CsvRecords.h"

#include <algorithm>
#include <new>

#include <csv.h>

namespace tessel::sources {
namespace {

// The library's buffer grows by so much at a time; its own 128 bytes make a long cell slow.
constexpr std::size_t kBufferStep = 1024 * 1024;

bool isLineEnd(char c) { return c == '\r' || c == '\n'; }

bool isBlank(char c) { return c == ' ' || c == '\t' || isLineEnd(c); }

} // namespace

CsvRecords::CsvRecords(char separator, int mostCells)
    : parser(std::make_unique<csv_parser>())
    , mostKept(std::size_t(mostCells))
{
    csv_init(parser.get(), 0);
    csv_set_delim(parser.get(), static_cast<unsigned char>(separator));
    csv_set_blk_size(parser.get(), kBufferStep);
}

CsvRecords::~CsvRecords() { csv_free(parser.get()); }

// The library does not say where in the text it is: it gets line by line, so that lines can be counted and
// nothing is taken behind the end of a record.
bool CsvRecords::take(const QByteArray &text, int &position)
{
    startAnew();
    while (position < text.size() && !isComplete) {
        const char *const start = text.cbegin() + position;
        const char *const lineEnd = std::find_if(start, text.cend(), isLineEnd);
        const bool isWhole = lineEnd != text.cend();
        const int size = int(lineEnd - start) + (isWhole ? 1 : 0);
        const bool isRestOfLineEnd = isCrLast && *start == '\n';
        if (!hasBegun)
            firstLine = currentLine;
        parse(start, size);
        position += size;
        if (isWhole && !isRestOfLineEnd)
            ++currentLine;
        isCrLast = isWhole && *lineEnd == '\r';
    }
    return isComplete;
}

bool CsvRecords::finish()
{
    startAnew();
    // Until now every text was fine; at the end the library shall say whether a quotation mark is open.
    csv_set_opts(parser.get(), CSV_STRICT | CSV_STRICT_FINI);
    const int status = csv_fini(
        parser.get(),
        [](void *bytes, std::size_t size, void *self) {
            static_cast<CsvRecords *>(self)->addCell(static_cast<const char *>(bytes), size);
        },
        [](int, void *self) { static_cast<CsvRecords *>(self)->endRecord(); }, this);
    isOpen = status != 0;
    return isComplete;
}

std::string_view CsvRecords::cell(int index) const
{
    const auto place = std::size_t(index);
    const std::size_t start = place == 0 ? 0 : ends.at(place - 1);
    return std::string_view(kept).substr(start, ends.at(place) - start);
}

void CsvRecords::parse(const char *bytes, int size)
{
    const auto length = std::size_t(size);
    hasBegun = hasBegun || !std::all_of(bytes, bytes + length, isBlank);
    bytesTaken += size;
    const std::size_t taken = csv_parse(
        parser.get(), bytes, length,
        [](void *cell, std::size_t cellSize, void *self) {
            static_cast<CsvRecords *>(self)->addCell(static_cast<const char *>(cell), cellSize);
        },
        [](int, void *self) { static_cast<CsvRecords *>(self)->endRecord(); }, this);
    // The only reason for which it stops outside its strict mode.
    if (taken != length)
        throw std::bad_alloc();
}

void CsvRecords::addCell(const char *bytes, std::size_t size)
{
    ++count;
    if (ends.size() >= mostKept)
        return;
    kept.append(bytes, size);
    ends.push_back(kept.size());
}

void CsvRecords::endRecord()
{
    isComplete = true;
    hasBegun = false;
}

void CsvRecords::startAnew()
{
    if (!isComplete)
        return;
    isComplete = false;
    kept.clear();
    ends.clear();
    count = 0;
    bytesTaken = 0;
}

} // namespace tessel::sources
