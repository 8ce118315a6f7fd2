#include "sources/DeclaredCodes.h"

#include "model/TDmSourceField.h"
#include "model/TDmVariable.h"

namespace tessel::sources {
namespace {

std::optional<int> codeIn(const QString &text)
{
    bool isNumber = false;
    const int code = text.toInt(&isNumber);
    return isNumber ? std::optional<int>(code) : std::nullopt;
}

} // namespace

DeclaredCodes DeclaredCodes::of(const TDmSourceField &field)
{
    return {codeIn(field.missing), codeIn(field.notApp)};
}

bool DeclaredCodes::wouldChange(const TDmVariable &variable) const
{
    return (missing && variable.getMissing() != *missing)
        || (notApplicable && variable.getNotappl() != *notApplicable);
}

void DeclaredCodes::giveTo(TDmVariable &variable) const
{
    if (missing)
        variable.setMissing(*missing);
    if (notApplicable)
        variable.setNotappl(*notApplicable);
}

} // namespace tessel::sources
