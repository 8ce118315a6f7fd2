#include "documents/SourceAudit.h"

#include <QLocale>
#include <QSet>
#include <QStringList>

#include <nlohmann/json.hpp>

#include <limits>
#include <string>
#include <vector>

namespace tessel::documents {
namespace {

/// A number's digits without the zeros around them, and the power of ten of the first: the same for each way
/// of writing the number.
struct Digits {
    explicit Digits(const QString &text)
    {
        const QStringList parts = text.toLower().split('e');
        const QString mantissa = QString(parts.at(0)).remove('-').remove('+');
        const int point = mantissa.indexOf('.');
        digits = QString(mantissa).remove('.');
        int before = point < 0 ? digits.size() : point;
        while (digits.startsWith('0')) {
            digits.remove(0, 1);
            --before;
        }
        while (digits.endsWith('0'))
            digits.chop(1);
        power = digits.isEmpty() ? 0 : before + (parts.size() > 1 ? parts.at(1).toLongLong() : 0);
    }

    bool operator!=(const Digits &other) const { return digits != other.digits || power != other.power; }

    QString digits;
    qint64 power = 0;
};

/// Walks the text of a document and remembers where it stands.
class Auditor : public nlohmann::json_sax<nlohmann::json> {
public:
    QVector<Loss> losses;

    bool null() override { return value(); }
    bool boolean(bool) override { return value(); }
    bool number_integer(number_integer_t) override { return value(); }
    bool string(string_t &text) override
    {
        // Qt's parser takes a mark of the byte order at the start of any text for one of the file's.
        if (text.compare(0, 3, "\xef\xbb\xbf") == 0)
            report(QStringLiteral("\"\\ufeff\u2026\""), QStringLiteral("\"\u2026\""));
        return value();
    }

    bool binary(binary_t &) override { return value(); }

    bool number_unsigned(number_unsigned_t number) override
    {
        // What is no whole number of 64 bits for Qt becomes a double.
        if (number > number_unsigned_t(std::numeric_limits<qint64>::max()))
            judge(QString::number(number));
        return value();
    }

    bool number_float(number_float_t, const string_t &text) override
    {
        judge(QString::fromStdString(text));
        return value();
    }

    bool start_object(std::size_t) override { return open(false); }
    bool start_array(std::size_t) override { return open(true); }
    bool end_object() override { return close(); }
    bool end_array() override { return close(); }

    bool key(string_t &name) override
    {
        const QString text = QString::fromStdString(name);
        Level &level = levels.back();
        level.step = text;
        if (level.seen.contains(text))
            losses.append({Loss::Repeated, path(), QString(), QString(), QString()});
        level.seen.insert(text);
        return true;
    }

    bool parse_error(std::size_t, const std::string &, const nlohmann::json::exception &) override
    {
        losses.append({Loss::Irregular, path(), QString(), QString(), QString()});
        return false;
    }

private:
    struct Level {
        bool isArray = false;
        int index = 0;
        QString step;
        QSet<QString> seen;
    };

    QString path() const
    {
        QString text;
        for (const Level &level : levels)
            text += '/' + (level.isArray ? QString::number(level.index) : pointerStep(level.step));
        return text;
    }

    /// Reports the number \a text when a double does not hold all its digits.
    void judge(const QString &text)
    {
        const double kept = text.toDouble();
        const QString shortest = QString::number(kept, 'g', QLocale::FloatingPointShortest);
        const QString whole = QString::number(kept, 'f', 0);
        if (Digits(text) != Digits(shortest) && Digits(text) != Digits(whole))
            report(text, QString::number(kept, 'g', 17));
    }

    void report(const QString &before, const QString &after)
    {
        losses.append({Loss::Changed, path(), QString(), before, after});
    }

    bool open(bool isArray)
    {
        levels.push_back({isArray, 0, QString(), {}});
        return true;
    }

    bool close()
    {
        levels.pop_back();
        return value();
    }

    /// A value is complete: the next one of an array stands one further.
    bool value()
    {
        if (!levels.empty() && levels.back().isArray)
            ++levels.back().index;
        return true;
    }

    std::vector<Level> levels;
};

} // namespace

QVector<Loss> lostInParsing(const QByteArray &bytes)
{
    Auditor auditor;
    nlohmann::json::sax_parse(bytes.cbegin(), bytes.cend(), &auditor);
    return auditor.losses;
}

} // namespace tessel::documents
