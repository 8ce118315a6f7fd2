#pragma once

#include <QLatin1String>

/// Texts and resource paths that more than one class of the business layer needs.
namespace tessel::constants {

/// \a literal with its length, which not every compiler can count at compile time by itself.
template<int Size>
constexpr QLatin1String text(const char (&literal)[Size])
{
    return QLatin1String(literal, Size - 1);
}

// The order is part of the header: text constants first, from the type names to the affirmative.
constexpr QLatin1String kTypeString = text("STRING");
constexpr QLatin1String kTypeReal = text("REAL");
constexpr QLatin1String kTypeInteger = text("INTEGER");
constexpr QLatin1String kColon = text(":");
constexpr QLatin1String kComma = text(",");
constexpr QLatin1String kLineEnd = text("\r\n");
constexpr QLatin1String kEquals = text("=");
constexpr QLatin1String kSemicolon = text(";");
constexpr QLatin1String kBlank = text(" ");
constexpr QLatin1String kTab = text("\t");
constexpr QLatin1String kUnderscore = text("_");
constexpr QLatin1String kYes = text("YES");

// Icons are compiled into the front end's resources; the models only name them.
constexpr QLatin1String kIconAbout = text(":/icons/res/icons/48px-About.png");
constexpr QLatin1String kIconEntityCode = text(":/icons/res/icons/48px-Entity-code.png");
constexpr QLatin1String kIconEntityLabel = text(":/icons/res/icons/48px-Entity-label.png");
constexpr QLatin1String kIconEntityWeight = text(":/icons/res/icons/48px-Entity-weight.png");
constexpr QLatin1String kIconIntegerNumber = text(":/icons/res/icons/48px-integernumber.png");
constexpr QLatin1String kIconNumberPlaceholder = text(":/icons/res/icons/48px-numberplaceholder.png");
constexpr QLatin1String kIconProjectPreferences = text(":/icons/res/icons/48px-Project-preferences.png");
constexpr QLatin1String kIconProjectSave = text(":/icons/res/icons/48px-Project-save.png");
constexpr QLatin1String kIconRealNumber = text(":/icons/res/icons/48px-realnumber.png");
constexpr QLatin1String kIconString = text(":/icons/res/icons/48px-string.png");
constexpr QLatin1String kIconVariableBool = text(":/icons/res/icons/48px-Variable-bool.png");
constexpr QLatin1String kIconVariableDecimal = text(":/icons/res/icons/48px-Variable-decimal.png");
constexpr QLatin1String kIconVariableInteger = text(":/icons/res/icons/48px-Variable-integer.png");
constexpr QLatin1String kIconVariableString = text(":/icons/res/icons/48px-Variable-string.png");

} // namespace tessel::constants
