// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/DesktopPrograms.h"

#include "base/Paths.h"

#include <QFile>
#include <QStringList>
#include <QUrl>

namespace Quillbox {
namespace {

/// What stands for a program of Windows: commands in the order in which they are tried.
struct DesktopProgram {
    const char *Name;
    const char *Commands; ///< separated by "|"; words behind the program's name go first
    const char *Missing;  ///< Spanish sentence without its full stop, UTF-8
};

constexpr DesktopProgram DesktopPrograms[] = {
    {"calc.exe",
     "gnome-calculator|kcalc|mate-calc|galculator|qalculate-gtk|qalculate-qt|speedcrunch|"
     "deepin-calculator|io.elementary.calculator|xcalc",
     "No se encuentra ninguna calculadora en este sistema"},
    {"explorer.exe",
     "xdg-open|gio open|kde-open|exo-open|sensible-browser|x-www-browser|firefox|chromium",
     "No se encuentra ningún programa que pueda mostrarlo"},
};

const DesktopProgram *FindEntry(const QString &commandLine) {
    const QString program = commandLine.trimmed().section(u' ', 0, 0);
    for (const DesktopProgram &entry : DesktopPrograms)
        if (program.compare(QLatin1String(entry.Name), Qt::CaseInsensitive) == 0)
            return &entry;
    return nullptr;
}

/// All behind the program's name is one argument, blanks and all: nobody quotes it.
QString ArgumentOf(const QString &commandLine) {
    QString argument = commandLine.trimmed().section(u' ', 1).trimmed();
    if (argument.size() > 1 && argument.startsWith(u'"') && argument.endsWith(u'"'))
        argument = argument.mid(1, argument.size() - 2);
    const bool isAddress = QUrl(argument).scheme().size() > 1; // one letter is a drive
    return isAddress ? argument : SystemPath(argument);
}

} // namespace

std::optional<Execution> FindDesktopProgram(const QString &commandLine) {
    const DesktopProgram *entry = FindEntry(commandLine);
    if (!entry)
        return std::nullopt;
    const QString argument = ArgumentOf(commandLine);
    for (const QString &command : QString::fromLatin1(entry->Commands).split(u'|')) {
        const QStringList words = command.split(u' ');
        const std::optional<QString> program = FindOnSearchPath(words.first());
        if (!program)
            continue;
        Execution execution{QFile::encodeName(*program), {QFile::encodeName(*program)}};
        for (const QString &word : words.mid(1))
            execution.Arguments += word.toUtf8();
        if (!argument.isEmpty())
            execution.Arguments += QFile::encodeName(argument);
        return execution;
    }
    return std::nullopt;
}

std::optional<QString> MissingDesktopProgram(const QString &commandLine) {
    const DesktopProgram *entry = FindEntry(commandLine);
    return entry ? std::optional(QString::fromUtf8(entry->Missing)) : std::nullopt;
}

} // namespace Quillbox
