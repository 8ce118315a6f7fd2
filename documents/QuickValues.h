#pragma once

#include "documents/SharedTexts.h"

#include <simdjson.h>

namespace tessel::documents {

/// The values of a document, each as the wanted type: for a value of that type, and for null, what Qt's
/// conversions give. Throws Refused for any other type, and for numbers whose conversion has its subtleties;
/// simdjson's own exception for what is no JSON.
class QuickValues {
public:
    using Value = simdjson::ondemand::value;
    using Object = simdjson::ondemand::object;

    /// The name of \a field, which must have no escapes.
    static std::string_view nameOf(simdjson::ondemand::field &field);

    QString text(Value value);

    /// A text, or the digits of a number.
    QString code(Value value);

    int whole(Value value);
    double real(Value value);
    bool flag(Value value);

    /// True for null, which is passed then.
    static bool isNull(Value &value) { return value.is_null(); }

    /// Looks at \a value and all in it, to be sure that Qt's parser would take it.
    void pass(Value value);

    /// Counts how many objects and arrays stand in one another around what is read. Throws Refused long
    /// before a parser or the stack gives up.
    class Descent {
    public:
        explicit Descent(QuickValues &values);
        ~Descent() { --depth; }

    private:
        int &depth;

        Q_DISABLE_COPY_MOVE(Descent)
    };

private:
    struct Number {
        bool isWhole = false;
        qint64 whole = 0;
        double real = 0;
    };

    static Number number(Value &value);

    SharedTexts texts;
    int depth = 0;
};

} // namespace tessel::documents
