// The editor's start, a keystroke in its search field and its memory, as shares of what a bare window, Qt's
// own proxy and the file take in the same run. Usage: bench_editor
// EDITOR BARE_WINDOW TESSEL BARE_CONSOLE [DICTIONARY]

#include "bench/Measure.h"
#include "business/models/VariableDiccionaryModel.h"
#include "business/models/VariablesDictionaryProxyModel.h"
#include "editor/DictionaryDocument.h"
#include "editor/MainWindow.h"
#include "model/TDmEntity.h"
#include "model/TDmVariable.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>
#include <QTableView>

#include <algorithm>
#include <cstdio>
#include <limits>
#include <memory>

namespace {

using tessel::bench::printRow;

constexpr int kRounds = 15;
constexpr int kRows = 20'000;

double seconds(const QElapsedTimer &timer) { return double(timer.nsecsElapsed()) / 1e9; }

/// The fastest of several starts of \a program.
double startOf(const QString &program, const QStringList &arguments)
{
    double best = std::numeric_limits<double>::max();
    for (int i = 0; i < kRounds; ++i) {
        QElapsedTimer timer;
        timer.start();
        QProcess process;
        process.setProcessChannelMode(QProcess::MergedChannels);
        process.start(program, arguments);
        if (!process.waitForFinished() || process.exitCode() != 0) {
            std::fprintf(stderr, "%s does not run\n", qPrintable(program));
            std::exit(1);
        }
        best = std::min(best, seconds(timer));
    }
    return best;
}

std::unique_ptr<TDmEntity> newEntity()
{
    auto entity = std::make_unique<TDmEntity>();
    for (int i = 0; i < kRows; ++i) {
        auto *variable = new TDmVariable;
        variable->setName(QStringLiteral("P%1_%2").arg(i).arg(i % 7 ? "AGE" : "SEX"));
        variable->setLabel(QStringLiteral("Answer to question number %1 of the person").arg(i));
        variable->setGroup(QStringLiteral("GROUP_%1").arg(i % 20));
        variable->setTag(i);
        entity->addVariables(variable);
    }
    return entity;
}

/// A word typed letter by letter into a filter over a table that is shown; the fastest round per keystroke.
double keystrokeOf(QTableView &view, QSortFilterProxyModel &proxy)
{
    view.setModel(&proxy);
    const QString word = QStringLiteral("NUMBER 1234");
    double best = std::numeric_limits<double>::max();
    for (int round = 0; round < kRounds; ++round) {
        proxy.setFilterRegExp(QRegExp());
        QApplication::processEvents();
        QElapsedTimer timer;
        timer.start();
        for (int length = 1; length <= word.size(); ++length) {
            proxy.setFilterRegExp(QRegExp(word.left(length), Qt::CaseInsensitive, QRegExp::FixedString));
            QApplication::processEvents();
        }
        best = std::min(best, seconds(timer) / word.size());
    }
    view.setModel(nullptr);
    return best;
}

/// Kilobytes of this process that are in memory.
double residentKilobytes()
{
    QFile status(QStringLiteral("/proc/self/status"));
    if (status.open(QFile::ReadOnly)) {
        const QList<QByteArray> lines = status.readAll().split('\n');
        for (const QByteArray &line : lines) {
            if (line.startsWith("VmRSS:"))
                return line.mid(6).trimmed().split(' ').first().toDouble();
        }
    }
    return 0.0;
}

} // namespace

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    QStandardPaths::setTestModeEnabled(true);
    QApplication::setOrganizationName(QStringLiteral("Tessel-bench"));
    const QStringList arguments = QApplication::arguments();
    if (arguments.size() < 5) {
        std::fprintf(stderr, "Usage: bench_editor EDITOR BARE_WINDOW TESSEL BARE_CONSOLE [DICTIONARY]\n");
        return 2;
    }
    const QString file = arguments.value(5, QStringLiteral("samples/census.json"));
    const double bare = startOf(arguments.at(2), {});
    const double editor = startOf(arguments.at(1), {QStringLiteral("--exit-when-shown"), file});
    printRow("start of the editor with a dictionary / bare window", editor * 1e3, bare * 1e3, "ms", 3.0);
    const double console = startOf(arguments.at(4), {});
    const double version = startOf(arguments.at(3), {QStringLiteral("--version")});
    printRow("start of the command line / bare program", version * 1e3, console * 1e3, "ms");
    const double check = startOf(arguments.at(3), {QStringLiteral("show"), file});
    printRow("tessel show of the dictionary / bare program", check * 1e3, console * 1e3, "ms");

    // First: what other measurements free would be used again.
    {
        tessel::editor::MainWindow window;
        window.show();
        QApplication::processEvents();
        const double before = residentKilobytes();
        window.document().open(file);
        QApplication::processEvents();
        printRow("memory for the opened dictionary / its file", residentKilobytes() - before,
            double(QFileInfo(file).size()) / 1024.0, "KiB", 20.0);
    }

    {
        const std::unique_ptr<TDmEntity> entity = newEntity();
        VariableDiccionaryModel model(nullptr, entity.get(), entity.get());
        QTableView view;
        view.resize(900, 600);
        view.show();
        VariablesDictionaryProxyModel ours(nullptr);
        QSortFilterProxyModel stock;
        stock.setFilterKeyColumn(-1);
        ours.setSourceModel(&model);
        stock.setSourceModel(&model);
        const double peer = keystrokeOf(view, stock);
        printRow("keystroke over 20,000 variables / Qt's own proxy", keystrokeOf(view, ours) * 1e3,
            peer * 1e3, "ms", 1.3);
    }

    return 0;
}
