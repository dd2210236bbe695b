// SPDX-License-Identifier: GPL-3.0-or-later
#include "Report.h"
#include "Workbench.h"

#include <QCoreApplication>
#include <QKeyEvent>

namespace Quillbox::Bench {

namespace {

constexpr int Size = static_cast<int>(Megabyte);

void PaintNow(const ScintillaEditor &editor) { editor.viewport()->repaint(); }

void TypeLetter(ScintillaEditor &editor) {
    QKeyEvent press(QEvent::KeyPress, Qt::Key_X, Qt::NoModifier, QStringLiteral("x"));
    QCoreApplication::sendEvent(&editor, &press);
    QKeyEvent release(QEvent::KeyRelease, Qt::Key_X, Qt::NoModifier, QStringLiteral("x"));
    QCoreApplication::sendEvent(&editor, &release);
    PaintNow(editor);
}

double TypingTime(ScintillaEditor &editor, int column) {
    editor.SetCaretPos({{0}, {column}});
    PaintNow(editor);
    return ShortestTime(5, [&] { TypeLetter(editor); }) * 1000;
}

} // namespace

void MeasureLongLine() {
    Workbench bench;
    const QString path = WriteFile(QStringLiteral("larga.bb"), SourceLine(Megabyte));
    std::unique_ptr<ScintillaEditor> editor;
    const double opening = ShortestTime(
        2,
        [&] {
            editor->OpenFile(path);
            PaintNow(*editor);
        },
        [&] { editor = bench.NewEditor(); });
    const Goal atOnce{Goal::Direction::AtMost, 100};
    Print("Opening a line of 1 MB until it shows", opening * 1000, "ms",
          {Goal::Direction::AtMost, 1000});
    Print("A letter typed at the start of the line until it shows", TypingTime(*editor, 0), "ms",
          atOnce);
    Print("A letter typed in the middle of the line until it shows", TypingTime(*editor, Size / 2),
          "ms", atOnce);
    Print("A letter typed at the end of the line until it shows", TypingTime(*editor, Size * 2),
          "ms", atOnce);
}

} // namespace Quillbox::Bench
