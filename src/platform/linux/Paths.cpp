// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/Paths.h"

#include <QDir>
#include <QFile>
#include <QStringList>

#include <dirent.h>
#include <sys/stat.h>

#include <memory>
#include <optional>

namespace Quillbox {

const QChar PathSeparator = u'/';
const char *const LineEnd = "\n";

namespace {

enum class EntryKind { Any, Folder };

/// A link that leads nowhere exists as well: saving there creates its target.
bool Exists(const QString &path, EntryKind kind = EntryKind::Any) {
    struct stat status {};
    const QByteArray name = QFile::encodeName(path);
    if (kind == EntryKind::Folder)
        return ::stat(name.constData(), &status) == 0 && S_ISDIR(status.st_mode);
    return ::lstat(name.constData(), &status) == 0;
}

QString Joined(const QString &folder, const QString &name) {
    return folder.isEmpty() || folder.endsWith(u'/') ? folder + name : folder + u'/' + name;
}

/// The entry of `folder` (empty for the current one) whose name equals `name` but for letter case,
/// the first in byte order when there are several.
std::optional<QString> FindEntryIgnoringCase(const QString &folder, const QString &name,
                                             EntryKind kind) {
    const QByteArray folderName = folder.isEmpty() ? QByteArray(".") : QFile::encodeName(folder);
    const std::unique_ptr<DIR, int (*)(DIR *)> entries(::opendir(folderName.constData()),
                                                       ::closedir);
    std::optional<QByteArray> found;
    while (const dirent *entry = entries ? ::readdir(entries.get()) : nullptr) {
        const QByteArray candidate = entry->d_name;
        const QString text = QFile::decodeName(candidate);
        if (text.compare(name, Qt::CaseInsensitive) == 0 && (!found || candidate < *found) &&
            Exists(Joined(folder, text), kind))
            found = candidate;
    }
    if (!found)
        return std::nullopt;
    return QFile::decodeName(*found);
}

/// Follows a path from `Reached` on, one name after the other.
struct PathWalk {
    QString Reached;
    bool Lost = false; ///< a name was not there: the rest is taken as it is written

    void Enter(const QString &name, EntryKind kind) {
        const QString exact = Joined(Reached, name);
        if (Lost || Exists(exact, kind)) {
            Reached = exact;
            return;
        }
        const std::optional<QString> other = FindEntryIgnoringCase(Reached, name, kind);
        Lost = !other;
        Reached = Joined(Reached, other.value_or(name));
    }

    /// `part` holds no "/". It is one name if there is such a name, with its "\" as any letter.
    void EnterPart(const QString &part, EntryKind kind) {
        if (part.contains(u'\\') && !Lost && Exists(Joined(Reached, part))) {
            Reached = Joined(Reached, part);
            return;
        }
        const QStringList names = part.split(u'\\', Qt::SkipEmptyParts);
        for (qsizetype i = 0; i < names.size(); ++i)
            Enter(names[i], i + 1 < names.size() ? EntryKind::Folder : kind);
    }
};

bool BeginsWithDrive(const QString &path) {
    return path.size() >= 2 && path[1] == u':' && path[0].unicode() < 0x80 && path[0].isLetter();
}

/// The folder that stands for a Windows drive. Empty when there is none.
std::optional<QString> FindDriveFolder(QChar letter) {
    if (letter.toLower() == u'z')
        return QStringLiteral("/");
    const QString prefix =
        qEnvironmentVariable("WINEPREFIX", QDir::homePath() + QStringLiteral("/.wine"));
    const QString folder = Joined(prefix, QStringLiteral("drive_") + letter.toLower());
    return Exists(folder, EntryKind::Folder) ? std::optional(folder) : std::nullopt;
}

QString WithoutDrive(const QString &path, PathWalk &walk) {
    const std::optional<QString> drive =
        BeginsWithDrive(path) ? FindDriveFolder(path[0]) : std::nullopt;
    if (drive) {
        walk.Reached = *drive;
        return path.mid(2);
    }
    if (path.startsWith(u'/') || path.startsWith(u'\\'))
        walk.Reached = QStringLiteral("/");
    return path;
}

} // namespace

QString SystemPath(const QString &path) {
    if (path.isEmpty() || Exists(path))
        return path;
    PathWalk walk;
    const QStringList parts = WithoutDrive(path, walk).split(u'/', Qt::SkipEmptyParts);
    for (qsizetype i = 0; i < parts.size(); ++i)
        walk.EnterPart(parts[i], i + 1 < parts.size() ? EntryKind::Folder : EntryKind::Any);
    const bool namesFolder = path.endsWith(u'/') || path.endsWith(u'\\');
    return namesFolder ? Joined(walk.Reached, QString()) : walk.Reached;
}

} // namespace Quillbox
