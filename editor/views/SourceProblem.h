#pragma once

#include <QString>

namespace tessel::documents {
struct FileProblem;
}

namespace tessel::editor {

/// One sentence on what is wrong with the file \a name, with the place in it where \a problem has one.
QString sentenceOn(const QString &name, const documents::FileProblem &problem);

} // namespace tessel::editor
