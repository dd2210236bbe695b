// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/ProgramSearch.h"

#include "base/CommandLine.h"
#include "base/Paths.h"
#include "platform/linux/DesktopPrograms.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

namespace Quillbox {

namespace {

bool IsWindowsProgram(const QString &path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly | QIODevice::Unbuffered) && file.read(2) == "MZ";
}

/// 0 when the program can be executed. One for Windows need not be marked as executable: Wine only
/// reads it, and archives made on Windows carry no such mark. What is in a folder that this user
/// may not look into counts as missing: search paths name such folders.
int ErrorOfProgram(const QString &path) {
    const QByteArray name = QFile::encodeName(path);
    struct stat status {};
    if (::stat(name.constData(), &status) != 0)
        return ENOENT;
    if (!S_ISREG(status.st_mode))
        return EACCES;
    return ::access(name.constData(), X_OK) == 0 || IsWindowsProgram(path) ? 0 : EACCES;
}

QStringList SearchPath() { return qEnvironmentVariable("PATH").split(u':', Qt::SkipEmptyParts); }

bool NamesFolder(const QString &program) {
    return program.contains(u'/') || program.contains(u'\\') || program.indexOf(u':') == 1;
}

QStringList PlacesOf(const QString &program) {
    if (NamesFolder(program))
        return {program};
    QStringList places;
    for (const QString &folder :
         QStringList{QCoreApplication::applicationDirPath(), QDir::currentPath()} + SearchPath())
        places += folder + u'/' + program;
    return places;
}

struct ProgramSearch {
    int Error = ENOENT;

    std::optional<QString> FindAt(const QString &place) {
        for (const char *ending : {"", ".exe"}) {
            const QString path = SystemPath(place + QLatin1String(ending));
            const int error = ErrorOfProgram(path);
            if (error == 0)
                return path;
            if (error != ENOENT)
                Error = error;
        }
        return std::nullopt;
    }

    std::optional<QString> Find(const QString &program) {
        for (const QString &place : PlacesOf(program)) {
            if (const std::optional<QString> found = FindAt(place))
                return found;
        }
        return std::nullopt;
    }
};

/// Programs for Windows take "/home/..." for an option. A short word such as "/o" is one indeed,
/// though its folder is there.
bool IsPathForWine(const QString &argument) {
    if (!argument.startsWith(u'/'))
        return false;
    const QString folder = QFileInfo(argument).path();
    return QFileInfo::exists(argument) || (folder != u"/" && QFileInfo(folder).isDir());
}

QString ArgumentForWine(QString argument) {
    if (!IsPathForWine(argument))
        return argument;
    return QStringLiteral("Z:") + argument.replace(u'/', u'\\');
}

std::variant<Execution, int> ExecutionOf(const QString &program, const QString &argumentText) {
    Execution execution{QFile::encodeName(program), {QFile::encodeName(program)}};
    const bool forWine = IsWindowsProgram(program);
    if (forWine) {
        const std::optional<QString> wine = FindOnSearchPath(QStringLiteral("wine"));
        if (!wine)
            return ENOEXEC;
        execution.File = QFile::encodeName(*wine);
        execution.Arguments.prepend(execution.File);
    }
    for (const QString &argument : SplitArguments(argumentText))
        execution.Arguments += (forWine ? ArgumentForWine(argument) : argument).toUtf8();
    return execution;
}

} // namespace

std::variant<Execution, int> FindExecution(const QString &commandLine) {
    ProgramSearch search;
    for (const ProgramCall &call : ProgramCalls(commandLine)) {
        if (const std::optional<QString> program = search.Find(call.Program))
            return ExecutionOf(*program, call.Arguments);
    }
    if (search.Error == ENOENT)
        if (const std::optional<Execution> program = FindDesktopProgram(commandLine))
            return *program;
    return search.Error;
}

std::optional<QString> FindOnSearchPath(const QString &name) {
    for (const QString &folder : SearchPath()) {
        const QFileInfo program(folder + u'/' + name);
        if (program.isFile() && program.isExecutable())
            return program.filePath();
    }
    return std::nullopt;
}

} // namespace Quillbox
