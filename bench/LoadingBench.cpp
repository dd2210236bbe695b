// SPDX-License-Identifier: GPL-3.0-or-later
#include "Report.h"
#include "Workbench.h"

#include <QFile>
#include <QKeyEvent>

#include <algorithm>

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

/// Milliseconds until a letter typed at the end of the text shows, the longest of some.
double LongestTypingTime(ScintillaEditor &editor) {
    editor.SetLinePosition({editor.LineCount() - 1});
    QCoreApplication::processEvents();
    double longest = 0;
    for (int letter = 0; letter < 100; ++letter)
        longest = std::max(longest, ShortestTime(1, [&] {
                               QKeyEvent key(QEvent::KeyPress, Qt::Key_X, Qt::NoModifier,
                                             QStringLiteral("x"));
                               QCoreApplication::sendEvent(&editor, &key);
                               QCoreApplication::processEvents();
                           }));
    return longest * 1000;
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
    Print("A letter typed at the end of 100 MB of source until it shows",
          LongestTypingTime(*editor), "ms", {Goal::Direction::AtMost, 100});
    editor.reset();
    MeasureOpeningInTheProgram(reference);
}

} // namespace Quillbox::Bench
