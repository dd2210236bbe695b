// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

#include <vector>

namespace Quillbox {

/// Splits as programs for Windows split their command line: blanks and tabs separate arguments,
/// double quotes keep them together, backslashes count only in front of a quote (two stand for one,
/// an odd one makes the quote a letter), and a doubled quote inside quotes is one quote.
QStringList SplitArguments(const QString &text);

/// One way to read a command line.
struct ProgramCall {
    QString Program;
    QString Arguments; ///< not yet split
};

/// The ways to read a command line, in the order in which they are tried. A quoted first word is
/// the program; without quotes it may end at each blank, because people forget the quotes around a
/// path with blanks. None for a command line without a program.
std::vector<ProgramCall> ProgramCalls(const QString &commandLine);

} // namespace Quillbox
