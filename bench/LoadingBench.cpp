// SPDX-License-Identifier: GPL-3.0-or-later
#include "Report.h"
#include "Workbench.h"

#include <QFile>

namespace Quillbox::Bench {

namespace {

void ReadPlainly(const QString &path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
        std::abort();
    const qint64 size = file.size();
    const std::unique_ptr<char[]> bytes(new char[static_cast<std::size_t>(size)]);
    if (file.read(bytes.get(), size) != size)
        std::abort();
}

} // namespace

void MeasureLoading() {
    Workbench bench;
    const QString path = WriteFile(QStringLiteral("grande.bb"), SourceText(LargeText));
    const double reference = ShortestTime(5, [&] { ReadPlainly(path); });
    std::unique_ptr<ScintillaEditor> editor;
    const double opening = ShortestTime(
        3,
        [&] {
            editor->OpenFile(path);
            editor->viewport()->repaint();
        },
        [&] { editor = bench.NewEditor(); });
    Print({"Opening 100 MB of source until it shows, against reading the file",
           opening,
           reference,
           "s",
           {Goal::Direction::AtMost, 10}});
    editor.reset();
    MeasureOpeningInTheProgram(reference);
}

} // namespace Quillbox::Bench
