// SPDX-License-Identifier: GPL-3.0-or-later
#include "ProgramRun.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>

#include <filesystem>

namespace Quillbox {
namespace {

QByteArray ReadSystemFile(const QString &path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QProcessEnvironment EnvironmentOf(const ProgramRun &run, const QString &folder) {
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("XDG_DATA_HOME"), QDir::cleanPath(run.DataFolder()));
    environment.insert(QStringLiteral("XDG_CONFIG_HOME"),
                       QDir::cleanPath(folder + QStringLiteral("/../ajustes")));
    return environment;
}

bool CopyFile(const QFileInfo &from, const QString &to) {
    std::error_code problem;
    if (from.isExecutable())
        std::filesystem::create_hard_link(from.filesystemAbsoluteFilePath(),
                                          QFileInfo(to).filesystemAbsoluteFilePath(), problem);
    return (from.isExecutable() && !problem) || QFile::copy(from.filePath(), to);
}

} // namespace

ProgramRun::ProgramRun(const QString &folder)
    : Folder_(folder) {
    Process_.setProcessChannelMode(QProcess::MergedChannels);
}

ProgramRun::~ProgramRun() {
    if (!IsRunning())
        return;
    Process_.kill();
    Process_.waitForFinished();
}

bool ProgramRun::Start(const QStringList &prefix) {
    QStringList command = prefix;
    command.append(QDir(Folder_).absoluteFilePath(QStringLiteral("quillbox")));
    Process_.setWorkingDirectory(Folder_);
    Process_.setProcessEnvironment(EnvironmentOf(*this, Folder_));
    Process_.start(command.takeFirst(), command);
    return Process_.waitForStarted();
}

bool ProgramRun::WaitForEnd(int milliseconds) {
    return !IsRunning() || Process_.waitForFinished(milliseconds);
}

bool CopyFolder(const QString &from, const QString &to) {
    const QDir source(from);
    const QDir target(to);
    QDirIterator entries(from, QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot,
                         QDirIterator::Subdirectories);
    bool copied = target.mkpath(QStringLiteral("."));
    while (copied && entries.hasNext()) {
        const QString path = entries.next();
        const QString name = source.relativeFilePath(path);
        copied = entries.fileInfo().isDir() ? target.mkpath(name)
                                            : CopyFile(entries.fileInfo(), target.filePath(name));
    }
    return copied;
}

bool PrepareSettings(const QString &folder) {
    QFile settings(folder + QStringLiteral("/Quillbox.ini"));
    const QByteArray text = "[Quillbox]\r\nFenixCPath=Checker\r\nMainPath=\r\n";
    return settings.open(QIODevice::WriteOnly) && settings.write(text) == text.size();
}

QList<qint64> ChildrenOf(qint64 process) {
    QList<qint64> children;
    QDirIterator threads(QStringLiteral("/proc/%1/task").arg(process),
                         QDir::Dirs | QDir::NoDotAndDotDot);
    while (threads.hasNext())
        for (const QByteArray &child :
             ReadSystemFile(threads.next() + QStringLiteral("/children")).simplified().split(' '))
            if (!child.isEmpty())
                children.append(child.toLongLong());
    return children;
}

QString StateOf(qint64 process) {
    const QByteArray status = ReadSystemFile(QStringLiteral("/proc/%1/stat").arg(process));
    return QString::fromLatin1(status.mid(status.lastIndexOf(')') + 2, 1));
}

SystemCall SystemCallOf(qint64 process) {
    const QString folder = QStringLiteral("/proc/%1/").arg(process);
    const QList<QByteArray> fields =
        ReadSystemFile(folder + QStringLiteral("syscall")).simplified().split(' ');
    if (fields.size() < 2)
        return {};
    const QFileInfo file(folder + QStringLiteral("fd/%1").arg(fields[1].toULongLong(nullptr, 16)));
    return {fields[0].toLong(), file.symLinkTarget().section(u'/', -1)};
}

QString ProgramOf(qint64 process) {
    return QFileInfo(QStringLiteral("/proc/%1/exe").arg(process)).symLinkTarget().section(u'/', -1);
}

} // namespace Quillbox
