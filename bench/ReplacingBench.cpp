// SPDX-License-Identifier: GPL-3.0-or-later
#include "Report.h"
#include "Workbench.h"

#include "search/ui/ScintillaReplace.h"

#include <cstdio>

namespace Quillbox::Bench {

namespace {

constexpr int Lines = 1000 * 1000;

/// A match in each line, so that no two of them could be replaced by one small edit.
std::string TextWithAMatchInEachLine() {
    std::string text;
    for (int line = 0; line < Lines; ++line)
        text += "enemigo = enemigos(" + std::to_string(line) + ")\r\n";
    return text;
}

FindTask TaskFor(const QString &term) {
    FindTask task;
    task.Request.Term = term;
    task.Request.MatchCase = true;
    return task;
}

void ReplaceAll(ScintillaEditor &editor, const FindTask &task, const QString &replacement) {
    if (ReplaceAllMatches(editor, task, replacement).Count != Lines)
        std::abort();
}

void MeasureReplacing(const char *name, const QString &path, const FindTask &task,
                      const QString &replacement, double longest = 1) {
    Workbench bench;
    std::unique_ptr<ScintillaEditor> editor;
    const auto open = [&] {
        editor = bench.NewEditor();
        editor->OpenFile(path);
        editor->viewport()->repaint();
    };
    const auto replace = [&] {
        ReplaceAll(*editor, task, replacement);
        editor->viewport()->repaint();
    };
    const Goal fast{Goal::Direction::AtMost, longest};
    Print(std::string("Replacing 1,000,000 matches ") + name + " until it shows",
          ShortestTime(3, replace, open), "s", fast);
    const double undoing = ShortestTime(
        3,
        [&] {
            editor->Undo();
            editor->viewport()->repaint();
        },
        [&] {
            open();
            replace();
        });
    Print(std::string("Taking back the replacement of 1,000,000 matches ") + name, undoing, "s",
          fast);
}

double SearchTime(ScintillaEditor &editor, const FindTask &task) {
    return ShortestTime(3, [&] {
        if (SelectMatch(editor, task, FindDirection::Forward).Match)
            std::abort();
    });
}

/// A search that finds nothing looks at all of the text.
void MeasureSearching() {
    Workbench bench;
    const auto editor = bench.NewEditor();
    editor->OpenFile(WriteFile(QStringLiteral("grande.bb"), SourceText(LargeText)));
    FindTask task = TaskFor(QStringLiteral("nave enemiga"));
    const Goal fast{Goal::Direction::AtMost, 0.5};
    Print("Looking through 100 MB for a text", SearchTime(*editor, task), "s", fast);
    task.Request.MatchCase = false;
    Print("The same in either case", SearchTime(*editor, task), "s", fast);
    task.Request.Term = QStringLiteral("nave\\d+ enemiga");
    task.Request.IsExpression = true;
    Print("Looking through 100 MB for a regular expression", SearchTime(*editor, task), "s",
          {Goal::Direction::AtMost, 3});
}

} // namespace

void MeasureReplacingIn(const QString &path) {
    Workbench bench;
    std::unique_ptr<ScintillaEditor> editor;
    const double replacing = ShortestTime(
        3,
        [&] {
            ReplaceAll(*editor, TaskFor(QStringLiteral("uno")), QStringLiteral("segundo"));
            editor->viewport()->repaint();
        },
        [&] {
            editor = bench.NewEditor();
            editor->OpenFile(path);
        });
    std::printf("%.0f\n", replacing * 1000);
}

void MeasureFinding() {
    MeasureSearching();
    const QString path = WriteFile(QStringLiteral("reemplazar.bb"), TextWithAMatchInEachLine());
    MeasureReplacing("of a text", path, TaskFor(QStringLiteral("enemigos")),
                     QStringLiteral("adversarios"));
    FindTask task = TaskFor(QStringLiteral("(\\w+) = (\\w+)\\("));
    task.Request.IsExpression = true;
    MeasureReplacing("of a regular expression", path, task, QStringLiteral("\\2 = \\1("));
    // Each of these is an edit of its own, so that the marks of lines move along.
    MeasureReplacing("by several lines", path, task, QStringLiteral("\\2 =\\n\\1("), 5);
}

} // namespace Quillbox::Bench
