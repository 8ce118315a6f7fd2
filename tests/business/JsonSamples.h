#pragma once

/// JSON values of every type, and what each reads as where a text, a whole number, a number or a flag is
/// wanted.
namespace tessel::test {

struct JsonSample {
    const char *tag;
    const char *json; ///< Single quotes stand for double ones.
    const char *text;
    int integer;
    double real;
    bool flag;
};

inline constexpr JsonSample kJsonSamples[] = {
    {"a whole number", "12", "12", 12, 12.0, true},
    {"a negative number", "-7", "-7", -7, -7.0, true},
    {"zero", "0", "0", 0, 0.0, false},
    {"two and a half", "2.5", "2.5", 3, 2.5, true},
    {"minus two and a half", "-2.5", "-2.5", -2, -2.5, true},
    {"a number that rounds to zero", "0.4", "0.4", 0, 0.4, false},
    {"a number past int", "3000000000", "3000000000", -1294967296, 3000000000.0, true},
    {"a number with exponent", "1.5e3", "1500", 1500, 1500.0, true},
    {"digits as text", "'12'", "12", 12, 12.0, true},
    {"digits between blanks", "' 12 '", " 12 ", 12, 12.0, true},
    {"decimals as text", "'2.5'", "2.5", 0, 2.5, true},
    {"a decimal comma", "'2,5'", "2,5", 0, 0.0, true},
    {"letters", "'abc'", "abc", 0, 0.0, true},
    {"empty text", "''", "", 0, 0.0, false},
    {"the text 0", "'0'", "0", 0, 0.0, false},
    {"the text false", "'false'", "false", 0, 0.0, false},
    {"the text FALSE", "'FALSE'", "FALSE", 0, 0.0, false},
    {"the text no", "'no'", "no", 0, 0.0, true},
    {"true", "true", "true", 1, 1.0, true},
    {"false", "false", "false", 0, 0.0, false},
    {"null", "null", "", 0, 0.0, false},
    {"an empty array", "[]", "", 0, 0.0, false},
    {"an array of one number", "[1]", "", 0, 0.0, false},
    {"an array of one text", "['a']", "", 0, 0.0, false},
    {"an empty object", "{}", "", 0, 0.0, false},
    {"an object", "{'a':1}", "", 0, 0.0, false},
};

} // namespace tessel::test
