// SPDX-License-Identifier: GPL-3.0-or-later
#include "RealProgram.h"
#include "Report.h"
#include "surfaces/DocumentWindow.h"
#include "surfaces/EditorControl.h"

#include <QKeyEvent>
#include <QProcess>
#include <QStandardPaths>

#include <algorithm>
#include <cstdio>

#include <sys/resource.h>

namespace Quillbox::Bench {

namespace {

constexpr int Runs = 5;
constexpr int LinesToScan = 1000 * 1000;
constexpr int LinesToTypeIn = 100 * 1000;
constexpr int Letters = 1000;

/// A program of exactly that many lines whose last line declares a function.
std::string SourceOfLines(int lines) {
    std::string text = SourceText(static_cast<std::size_t>(lines) * 40);
    std::size_t end = 0;
    for (int line = 1; line < lines; ++line)
        end = text.find('\n', end) + 1;
    text.resize(end);
    return text + "Process Final()";
}

double ChildrenSeconds() {
    rusage usage{};
    getrusage(RUSAGE_CHILDREN, &usage);
    const auto seconds = [](const timeval &time) {
        return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) / 1e6;
    };
    return seconds(usage.ru_utime) + seconds(usage.ru_stime);
}

/// Processor time that Universal Ctags' parser for BASIC takes on the file; 0 when it is not there.
double SecondsOfCtags(const QString &path) {
    const QString ctags = QStandardPaths::findExecutable(QStringLiteral("ctags"));
    double shortest = 0;
    for (int run = 0; run < Runs && !ctags.isEmpty(); ++run) {
        const double before = ChildrenSeconds();
        const int code =
            QProcess::execute(ctags, {QStringLiteral("--language-force=Basic"),
                                      QStringLiteral("-f"), QStringLiteral("/dev/null"), path});
        if (code != 0)
            return 0;
        const double taken = ChildrenSeconds() - before;
        shortest = run == 0 ? taken : std::min(shortest, taken);
    }
    return shortest;
}

/// The Open command on a document that is open already only scans it once more.
void MeasureScan() {
    const QString path = WriteFile(QStringLiteral("millon.prg"), SourceOfLines(LinesToScan));
    RealProgram real(std::vector<QString>(Runs + 1, path));
    MillisecondsOf(real.Whole.Main(), OpenCommand, 1);
    const double scan =
        ShortestTime(Runs, [&] { MillisecondsOf(real.Whole.Main(), OpenCommand, 1); });
    const double ctags = SecondsOfCtags(path);
    if (ctags > 0)
        Print({"Scanning 1,000,000 lines, against Universal Ctags' parser for BASIC",
               scan,
               ctags,
               "s",
               {Goal::Direction::AtMost, 0.25}});
    else
        std::printf("Scanning 1,000,000 lines: %.3f s; Universal Ctags is not installed\n", scan);
}

void TypeLetter(QWidget &editor) {
    for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        QKeyEvent key(type, Qt::Key_X, Qt::NoModifier, QStringLiteral("x"));
        QCoreApplication::sendEvent(&editor, &key);
        QCoreApplication::processEvents();
    }
}

/// In the line of a declaration, each letter has the whole document scanned again.
void MeasureTypingInADeclaration() {
    const QString path = WriteFile(QStringLiteral("cienmil.prg"), SourceOfLines(LinesToTypeIn));
    RealProgram real({path});
    MillisecondsOf(real.Whole.Main(), OpenCommand, 1);
    auto &window = *real.Whole.Registry().Current().Window;
    window.Editor().SetLinePosition({LinesToTypeIn - 1});
    window.Editor().SetCaretPos({{LinesToTypeIn - 1}, {8}});
    QCoreApplication::processEvents();
    auto &editor = *real.Whole.Main().findChild<QWidget *>(QStringLiteral("txtCode"));
    std::vector<double> times;
    for (int letter = 0; letter < Letters; ++letter)
        times.push_back(ShortestTime(1, [&] { TypeLetter(editor); }) * 1000);
    if (!real.Whole.Registry().Current().FunctionNames[0].startsWith(u'x'))
        std::abort(); // nothing was scanned
    std::ranges::sort(times);
    Print("A letter typed into a declaration among 100,000 lines until it shows, 99th percentile",
          times[static_cast<std::size_t>(Letters) * 99 / 100], "ms", {Goal::Direction::AtMost, 16});
}

} // namespace

void MeasureSymbols() {
    MeasureScan();
    MeasureTypingInADeclaration();
}

} // namespace Quillbox::Bench
