// SPDX-License-Identifier: GPL-3.0-or-later
#include "Report.h"
#include "Workbench.h"

#include <QFile>
#include <QProcess>

#include <cstdio>

#include <unistd.h>

namespace Quillbox::Bench {

double ResidentBytes() {
    QFile file(QStringLiteral("/proc/self/statm"));
    if (!file.open(QIODevice::ReadOnly))
        std::abort();
    return file.readAll().split(' ').at(1).toDouble() * static_cast<double>(sysconf(_SC_PAGESIZE));
}

void PrintMemoryOfColouredText() {
    Workbench bench;
    const QString path = WriteFile(QStringLiteral("grande.bb"), SourceText(LargeText));
    const auto editor = bench.NewEditor();
    editor->viewport()->repaint();
    const double before = ResidentBytes();
    editor->OpenFile(path);
    editor->SendScintilla(QsciScintillaBase::SCI_COLOURISE, 0UL, -1L);
    editor->viewport()->repaint();
    std::printf("%.4f\n", (ResidentBytes() - before) / static_cast<double>(QFile(path).size()));
}

/// In a process of its own: memory given back by other measurements would hide what is needed.
void MeasureMemory(const QString &program) {
    QProcess process;
    process.start(program, {QStringLiteral("--memory")});
    if (!process.waitForFinished(-1) || process.exitCode() != 0)
        std::abort();
    Print("Memory for each byte of coloured source",
          process.readAllStandardOutput().trimmed().toDouble(), "bytes",
          {Goal::Direction::AtMost, 2.6});
}

} // namespace Quillbox::Bench
