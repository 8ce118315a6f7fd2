#pragma once

#include <QByteArray>

#include <string>
#include <vector>

/// Dictionaries in structs of the standard library, filled by other parsers: what opening one is compared
/// with.
namespace tessel::bench {

struct PlainLabel {
    std::string value;
    std::string label;
};

struct PlainRange {
    double min = 0;
    double max = 0;
};

struct PlainVariable {
    std::string name;
    std::string alias;
    std::string label;
    std::string group;
    std::string type;
    std::string field;
    int tag = 0;
    int notapp = 0;
    int missing = 0;
    int size = 0;
    int start = 0;
    int length = 0;
    std::vector<PlainRange> ranges;
    std::vector<PlainLabel> labels;
};

struct PlainEntity {
    std::string name;
    bool selectable = false;
    bool isVirtual = false;
    std::vector<PlainVariable> variables;
    std::vector<PlainEntity> entities;
};

PlainEntity plainByNlohmann(const QByteArray &text);
PlainEntity plainBySimdjson(const QByteArray &text);

} // namespace tessel::bench
