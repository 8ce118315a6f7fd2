#pragma once

#include "documents/DocumentFile.h"

#include <QJsonParseError>

namespace tessel::documents {

/// What is wrong with \a bytes, which Qt's parser gave up with \a error: the place where a person would look
/// for it, and what was expected there.
FileProblem faultOf(const QByteArray &bytes, const QJsonParseError &error);

/// The problem \a message at the byte \a offset of \a bytes, as line and column. Columns count characters.
FileProblem problemAt(const QByteArray &bytes, int offset, const QString &message);

} // namespace tessel::documents
