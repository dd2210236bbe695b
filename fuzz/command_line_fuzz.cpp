// SPDX-License-Identifier: GPL-3.0-or-later
// Any text as a command line is read into programs and arguments that stand in it; arguments that
// were quoted as programs for Windows expect them come back, whatever they hold.
#include "Fuzz.h"

#include "base/AnsiText.h"
#include "base/CommandLine.h"

using namespace Quillbox;

namespace {

QString Quoted(const QString &argument) {
    QString quoted = QStringLiteral("\"");
    qsizetype backslashes = 0;
    for (const QChar letter : argument) {
        if (letter == u'"')
            quoted += QString(backslashes + 1, u'\\');
        backslashes = letter == u'\\' ? backslashes + 1 : 0;
        quoted += letter;
    }
    return quoted + QString(backslashes, u'\\') + u'"';
}

void CheckQuoting(const QStringList &arguments) {
    QString line;
    for (const QString &argument : arguments)
        line += Quoted(argument) + u' ';
    Require(SplitArguments(line) == arguments);
}

void CheckCalls(const QString &text) {
    for (const ProgramCall &call : ProgramCalls(text)) {
        Require(!call.Program.isEmpty());
        Require(text.contains(call.Program) && text.endsWith(call.Arguments));
        Require(SplitArguments(call.Arguments).size() <= text.size());
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    const QString text = FromAnsi(BytesOf(data, size));
    CheckQuoting(text.split(u'\n'));
    CheckCalls(text);
    return 0;
}
