#pragma once

#include "tests/sources/StatisticalFile.h"

namespace tessel::test {

/// One sample: the name of its file and the bytes.
struct Sample {
    QString name;
    QByteArray bytes;
};

/// The small source files of the folder samples/, as they are written anew. Everything in them is invented.
std::vector<Sample> sampleSources();

} // namespace tessel::test
