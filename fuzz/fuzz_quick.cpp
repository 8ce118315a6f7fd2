// Any bytes, by both ways: what the quick reader takes is the same tree as the library's reader makes of it,
// and both writers give the same bytes for it.

#include "documents/BlankSieve.h"
#include "documents/DocumentForm.h"
#include "documents/Losses.h"
#include "documents/OpenedDocument.h"
#include "documents/QuickReader.h"
#include "documents/QuickWriter.h"
#include "tests/documents/TreeContent.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>

namespace docs = tessel::documents;

namespace {

void require(bool fact)
{
    if (!fact)
        std::abort();
}

void requireSameText(TDmEntity &root)
{
    const std::optional<QByteArray> text = docs::textQuickly(root);
    require(!text || *text == docs::dictionaryTextOfLibrary(root));
}

/// Without blanks \a bytes are taken as they are with them.
void requireSameWithoutBlanks(const QByteArray &bytes, const TDmEntity *quick)
{
    QByteArray kept;
    docs::BlankSieve().sift(bytes.constData(), bytes.size(), kept);
    const std::unique_ptr<TDmEntity> sifted = docs::readQuickly(kept);
    require(bool(sifted) == bool(quick));
    require(!quick || tessel::test::contentOf(*sifted) == tessel::test::contentOf(*quick));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char *>(data), int(size));
    const docs::Outcome<QJsonObject> parsed = docs::parseObject(bytes);
    const std::unique_ptr<TDmEntity> quick = docs::readQuickly(bytes);
    requireSameWithoutBlanks(bytes, quick.get());
    if (!parsed.result) {
        require(!quick);
        return 0;
    }
    if (docs::kindOf(*parsed.result) == docs::DocumentKind::Run) {
        require(!quick);
        return 0;
    }
    const std::unique_ptr<TDmEntity> known = docs::readDictionary(*parsed.result);
    requireSameText(*known);
    if (!quick)
        return 0;
    require(tessel::test::contentOf(*quick) == tessel::test::contentOf(*known));
    requireSameText(*quick);
    if (docs::isWrittenAs(*quick, bytes)) {
        require(docs::normalForm(*parsed.result) == bytes);
        require(docs::lossesOf(bytes, *parsed.result, bytes).isEmpty());
    }
    return 0;
}
