// SPDX-License-Identifier: GPL-3.0-or-later
#include "ProgramRun.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>

namespace Quillbox {

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
                                            : QFile::copy(path, target.filePath(name));
    }
    return copied;
}

} // namespace Quillbox
