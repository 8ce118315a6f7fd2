// Any bytes: parsed, read and written again, as the programs do with files. A document that was written once
// and read again must be written the same way ever after.

#include "documents/DocumentFile.h"
#include "documents/DocumentForm.h"
#include "documents/Losses.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>

namespace docs = tessel::documents;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char *>(data), int(size));
    const docs::Outcome<QJsonObject> parsed = docs::parseObject(bytes);
    if (!parsed.result)
        return 0;
    const QByteArray first = docs::normalForm(*parsed.result);
    docs::lossesOf(bytes, *parsed.result, first);
    const QByteArray second = docs::normalForm(*docs::parseObject(first).result);
    const QByteArray third = docs::normalForm(*docs::parseObject(second).result);
    if (second != third)
        std::abort();
    return 0;
}
