#pragma once

#include "sources/SourceText.h"

#include <QHash>
#include <QString>
#include <QVector>

namespace tessel::sources {

/// A code with its label.
struct CodeLabel {
    enum class Kind { Number, Text, Tag };

    Kind kind = Kind::Number;
    double number = 0;
    QString text; ///< Of a text code, without blanks at its end; of a tag ".a" to ".z".
    QString label; ///< May be empty.
};

/// The labels of a set of codes, which any number of variables may share.
struct LabelSet {
    QVector<CodeLabel> labels; ///< In the order of the file.
    TextMends mends;
};

/// Values that are declared as missing: one code, or all numbers from one to another.
struct MissingRange {
    bool isText = false;
    double low = 0; ///< An extreme number when there is no lower bound.
    double high = 0;
    QString text; ///< For people, when isText.

    bool holds(double number) const { return !isText && number >= low && number <= high; }
};

/// What a statistical file says about one of its variables.
struct StatisticalVariable {
    enum class Storage { Text, LongText, Byte, Int, Long, Float, Double };

    QString name;
    QString label;
    QString format; ///< As the package writes it: "F8.2", "%9.0g", "DATE9."; may be empty.
    QString labelSet; ///< The name of its label set; may be empty, or the name of a set that is not there.
    QString labelsNotFound; ///< In SAS, the format whose labels a catalogue was expected to have.
    Storage storage = Storage::Double;
    int storageWidth = 0; ///< In bytes.
    QVector<MissingRange> missing;
    TextMends mends;

    bool isText() const { return storage == Storage::Text || storage == Storage::LongText; }
    bool isDeclaredMissing(double number) const;
};

/// What a statistical file says about itself, as it stands there.
struct StatisticalContent {
    QVector<StatisticalVariable> variables; ///< In the order of the file.
    QHash<QString, LabelSet> labelSets;
    QString title;
    QString encoding; ///< Empty when the file does not tell.
    TextMends mends; ///< Of the title.
    int version = 0; ///< Of the format.
    qint64 rows = -1; ///< -1 when the file does not tell.
};

} // namespace tessel::sources
