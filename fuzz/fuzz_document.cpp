// Any bytes: parsed, read, judged and written again, as the programs do with files. What was written once
// stays as it is, however often it is read and written again.

#include "documents/DocumentFile.h"
#include "documents/DocumentForm.h"
#include "documents/Findings.h"
#include "documents/Losses.h"
#include "fuzz/support/Desk.h"
#include "fuzz/support/Expect.h"

namespace docs = tessel::documents;
using tessel::fuzz::expect;
using tessel::fuzz::expectSame;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    tessel::fuzz::openDesk();
    const QByteArray bytes(reinterpret_cast<const char *>(data), int(size));
    const docs::Outcome<QJsonObject> parsed = docs::parseObject(bytes);
    if (!parsed.result) {
        expect(!parsed.problem.message.isEmpty(), "a document is refused without a reason");
        return 0;
    }
    const QByteArray first = docs::normalForm(*parsed.result);
    for (const docs::Loss &loss : docs::lossesOf(bytes, *parsed.result, first))
        expect(!loss.sentence().isEmpty(), "a loss is listed without a sentence");

    const docs::Outcome<QJsonObject> again = docs::parseObject(first);
    expect(again.result.has_value(), "what was written cannot be read");
    const QByteArray second = docs::normalForm(*again.result);
    expectSame(QString::fromUtf8(second), QString::fromUtf8(first), "the normal form is not stable");
    // Half a surrogate pair is kept, but no other program reads it: that alone is told of a normal form.
    for (const docs::Loss &loss : docs::lossesOf(first, *again.result, second))
        expect(loss.kind == docs::Loss::Irregular, "the normal form loses something");

    if (docs::kindOf(*again.result) == docs::DocumentKind::Dictionary) {
        for (const docs::Finding &finding : docs::findingsIn(*docs::readDictionary(*again.result)))
            expect(!finding.message.isEmpty() && !finding.code.isEmpty(), "a finding says nothing");
    }
    return 0;
}
