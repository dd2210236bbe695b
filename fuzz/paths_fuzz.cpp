// SPDX-License-Identifier: GPL-3.0-or-later
// Any text as a stored path, looked for in a folder of its own with names that differ in case, hold
// "\" or lead nowhere: a path that exists stays as it is, and a found one is found again.
#include "Fuzz.h"

#include "base/AnsiText.h"
#include "base/Paths.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

using namespace Quillbox;

namespace {

void Create(const QString &name) { Require(QFile(name).open(QIODevice::WriteOnly)); }

/// The current folder and the one in which Wine's drive C lies, while the fuzzer runs.
class FolderOfPaths {
  public:
    FolderOfPaths() {
        Require(Folder_.isValid() && QDir::setCurrent(Folder_.path()));
        qputenv("WINEPREFIX", QFile::encodeName(Folder_.path()));
        QDir().mkpath(QStringLiteral("Media/nave"));
        QDir().mkpath(QStringLiteral("media"));
        QDir().mkpath(QStringLiteral("drive_c/Juego"));
        for (const char *name : {"Media/Nave.x", "Media/nave/casco.PCX", "media/NAVE.X",
                                 "drive_c/Juego/juego.bb", "con\\barra.bb", "A\xC3\x91O.bb"})
            Create(QString::fromUtf8(name));
        Require(QFile::link(QStringLiteral("falta.bb"), QStringLiteral("Enlace.bb")));
    }

  private:
    QTemporaryDir Folder_;
};

bool Exists(const QString &path) {
    const QFileInfo entry(path);
    return entry.exists() || entry.isSymLink();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    static const FolderOfPaths Folder;
    const QString path = FromAnsi(BytesOf(data, size));
    const QString found = SystemPath(path);
    Require(found.isEmpty() == path.isEmpty());
    if (Exists(path))
        Require(found == path);
    if (Exists(found))
        Require(SystemPath(found) == found);
    return 0;
}
