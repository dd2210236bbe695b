// SPDX-License-Identifier: GPL-3.0-or-later
#include "data_files/HelpFolder.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>

#include <stdexcept>

namespace Quillbox {

QString HelpPath(const QString &name) {
    return QStringLiteral(QUILLBOX_PROGRAM_DIR "/Ayuda/") + name;
}

QStringList HelpPageNames() {
    QStringList names;
    const QDir folder(HelpPath({}));
    QDirIterator files(folder.path(), {QStringLiteral("*.htm")}, QDir::Files,
                       QDirIterator::Subdirectories);
    while (files.hasNext())
        names += folder.relativeFilePath(files.next());
    names.sort();
    return names;
}

QByteArray ReadHelpFile(const QString &name) {
    QFile file(HelpPath(name));
    if (!file.open(QIODevice::ReadOnly))
        throw std::runtime_error("cannot read " + name.toStdString());
    return file.readAll();
}

QString HelpPage(const QString &name) { return QString::fromUtf8(ReadHelpFile(name)); }

QStringList AllMatches(const QString &text, const char *pattern) {
    QStringList found;
    auto matches = QRegularExpression(QString::fromUtf8(pattern),
                                      QRegularExpression::CaseInsensitiveOption |
                                          QRegularExpression::DotMatchesEverythingOption)
                       .globalMatch(text);
    while (matches.hasNext())
        found += matches.next().captured(1);
    return found;
}

QString FileOfLink(const QString &page, const QString &address) {
    const QString file = address.section(u'#', 0, 0);
    if (file.isEmpty())
        return page;
    return QDir::cleanPath(QFileInfo(page).path() + u'/' + file);
}

bool IsHelpFile(const QString &name) {
    QDir folder(HelpPath({}));
    const QStringList parts = name.split(u'/');
    for (qsizetype i = 0; i < parts.size(); ++i) {
        const auto kind = i + 1 < parts.size() ? QDir::Dirs : QDir::Files;
        if (!folder.entryList(kind | QDir::NoDotAndDotDot).contains(parts[i]))
            return false;
        folder.setPath(folder.filePath(parts[i]));
    }
    return true;
}

} // namespace Quillbox
