#pragma once

#include "cli/FromDataCommand.h"

/// The command line: the dictionary libraries without a display.
namespace tessel::cli {

/// What a program returns to the shell.
enum ExitStatus {
    Clean = 0, ///< Nothing to report.
    Findings = 1, ///< Something was found, differs, would change or would be lost.
    Failure = 2, ///< Wrong usage; input that cannot be read or parsed; output that cannot be written.
};

/// Runs the program \a argv and returns an ExitStatus. Results go to standard output, messages to standard
/// error. Data files are read by \a read.
int run(int argc, char **argv, const ReadSource &read = sources::readSource);

} // namespace tessel::cli
