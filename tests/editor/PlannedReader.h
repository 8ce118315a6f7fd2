#pragma once

#include "tests/editor/SourceFixtures.h"

#include <QFileInfo>

namespace tessel::test {

/// A pane whose datasets are read by a function of the test instead of from files.
class PlannedReader {
public:
    using Outcome = sources::SourceOutcome;

    PlannedReader()
    {
        pane.setDatasetReader([this](const QString &file, const sources::ReadOptions &options) {
            calls.append(QStringLiteral("%1 encoding=%2 labels=%3 records=%4")
                             .arg(QFileInfo(file).fileName(), options.encoding,
                                 QFileInfo(options.catalogue).fileName())
                             .arg(options.rows));
            return answer(options);
        });
    }

    static Outcome fields(const QStringList &texts)
    {
        Outcome outcome;
        outcome.result.emplace();
        outcome.result->fields = fieldsOf(texts);
        return outcome;
    }

    static Outcome problem(const char *message, bool canRetry = false)
    {
        Outcome outcome;
        outcome.problem.message = QString::fromUtf8(message);
        outcome.canRetryWithEncoding = canRetry;
        return outcome;
    }

    static Outcome cancelled()
    {
        Outcome outcome;
        outcome.isCancelled = true;
        return outcome;
    }

    /// The calls since the last time.
    QStringList takeCalls()
    {
        const QStringList list = calls;
        calls.clear();
        return list;
    }

    editor::SourcesPane pane;
    QStringList calls;
    std::function<Outcome(const sources::ReadOptions &)> answer = [](const sources::ReadOptions &) {
        return fields({QStringLiteral("A=a"), QStringLiteral("B=b")});
    };

private:
    Q_DISABLE_COPY_MOVE(PlannedReader)
};

} // namespace tessel::test
