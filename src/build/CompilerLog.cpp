// SPDX-License-Identifier: GPL-3.0-or-later
#include "build/CompilerLog.h"

#include "base/AnsiText.h"
#include "base/Characters.h"
#include "base/Numbers.h"
#include "base/Paths.h"
#include "base/RuntimeError.h"
#include "build/MessageShapes.h"
#include "documents/DocumentCommands.h"
#include "state/DocumentRegistry.h"
#include "surfaces/Dialogs.h"
#include "surfaces/DocumentWindow.h"
#include "surfaces/EditorControl.h"
#include "surfaces/Files.h"

#include <algorithm>
#include <limits>

namespace Quillbox {
namespace {

/// The line that a text beginning with a 1-based number means, -1 without a number. Only blanks and
/// decimal digits count: a sign or a point is message already. A number that no line can have means
/// the last line that can be named, so that the person still gets to read the error.
LineIndex LineOf(const QString &lineText) {
    const auto begin = std::ranges::find_if(
        lineText, [](QChar character) { return character != u' ' && character != u'\t'; });
    const auto end = std::find_if_not(begin, lineText.end(), IsDigit);
    const double number = LeadingNumber(QStringView(begin, end));
    return {static_cast<int>(std::min<double>(number - 1, std::numeric_limits<int>::max()))};
}

} // namespace

/// The separator stands twice, because the program folder ends in one already; the file system
/// accepts that.
CompilerLog::CompilerLog(const QString &appDir, DocumentRegistry &registry,
                         DocumentCommands &documents, Files &files, Dialogs &dialogs)
    : LogFile_(appDir + PathSeparator + QStringLiteral("CLog.tmp"))
    , Registry_(registry)
    , Documents_(documents)
    , Files_(files)
    , Dialogs_(dialogs) {}

void CompilerLog::ShowCompilerErrors(const QString &output) {
    CompileErrorFound = false;
    const auto errorLine = FindErrorLine(KeepLog(output));
    if (!errorLine)
        return;
    const ErrorLocation location = LocateError(*errorLine);
    Documents_.OpenDocument(location.FileText);
    ShowLine(location.LineText);
    Dialogs_.ShowMessage({*errorLine, QStringLiteral("Quillbox")});
    CompileErrorFound = true;
}

/// Returns what the log file holds, which is what gets searched.
QString CompilerLog::KeepLog(const QString &output) {
    if (!Files_.Write(LogFile_, ToAnsi(output + QStringLiteral("\r\n"))))
        throw PathAccessError();
    const auto log = Files_.Read(LogFile_);
    if (!log)
        throw PathAccessError();
    return FromAnsi(*log);
}

void CompilerLog::ShowLine(const QString &lineText) {
    const LineIndex line = LineOf(lineText);
    EditorControl &editor = Registry_.Current().Window->Editor();
    editor.SetHighlightedLine(line);
    editor.SetTopIndex(line);
    editor.SetCaretPos({line, {0}});
}

} // namespace Quillbox
