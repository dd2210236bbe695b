// SPDX-License-Identifier: GPL-3.0-or-later
#include "ProgramTest.h"

#include <QDir>
#include <QFile>

namespace Quillbox {
namespace {

/// Saves that the system refuses. The old bytes stay, a copy of the new ones is kept elsewhere, and
/// the document goes on counting as changed.
class FailingSave : public ProgramTest {
  protected:
    ~FailingSave() override { QFile::setPermissions(PersonsFile(QString()), AllOfOwner); }

    bool OpenChanged(const QStringList &prefix = {}) {
        if (!Start(prefix) || !Open(Game_))
            return false;
        Person_.Type(QStringLiteral("x"));
        return true;
    }

    /// Saves, reads the message, which must give this reason, and closes it.
    void SaveInVain(const QString &reason) {
        ASSERT_TRUE(Press({QStringLiteral("ctrl+s")}));
        CloseMessage(reason);
    }

    void CloseMessage(const QString &reason) {
        const QString message = Person_.ReadMessage(ErrorTitle);
        ASSERT_TRUE(Person_.PressIn(ErrorTitle, {QStringLiteral("Return")}));
        ASSERT_TRUE(Person_.WaitForNoWindow(ErrorTitle));
        const QString start =
            QStringLiteral("No se ha podido guardar el archivo %1.\n%2\n\n").arg(Game_, reason);
        const QString beforeCopy = QStringLiteral("Hay una copia del texto en ");
        EXPECT_EQ(message.left(start.size()).toStdString(), start.toStdString());
        ASSERT_TRUE(message.mid(start.size()).startsWith(beforeCopy)) << qPrintable(message);
        ASSERT_TRUE(message.endsWith(u'.'));
        const QString copy = message.mid(start.size() + beforeCopy.size()).chopped(1);
        EXPECT_TRUE(BytesOf(copy) == 'x' + OldBytes) << qPrintable(copy);
    }

    static constexpr QFile::Permissions AllOfOwner =
        QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner;
    static inline const QByteArray OldBytes = QByteArray("Print 1\r\n").repeated(5000);

    QString Game_ = Write(QStringLiteral("juego.prg"), OldBytes);
};

int ExitCodeOf(const QStringList &command) {
    return QProcess::execute(command.first(), command.mid(1));
}

/// Commands in front of another one that run it where it may mount disks that nobody else sees.
/// Empty when the system grants that to nobody here.
QStringList FindMountingPrefix() {
    const QStringList candidates[] = {{QStringLiteral("unshare"), QStringLiteral("-m")},
                                      {QStringLiteral("unshare"), QStringLiteral("-rm")}};
    const QStringList attempt = {QStringLiteral("mount"), QStringLiteral("-t"),
                                 QStringLiteral("tmpfs"), QStringLiteral("tmpfs"),
                                 QStringLiteral("/mnt")};
    for (const QStringList &candidate : candidates)
        if (ExitCodeOf(candidate + attempt) == 0)
            return candidate;
    return {};
}

} // namespace

TEST_F(FailingSave, OnAFullDiskKeepsTheOldBytes) {
    const QStringList mounting = FindMountingPrefix();
    if (mounting.isEmpty()) {
        // The system's limit for one file stands in for the disk's.
        ASSERT_TRUE(OpenChanged({QStringLiteral("prlimit"), QStringLiteral("--fsize=40000"),
                                 QStringLiteral("env"), QStringLiteral("--ignore-signal=XFSZ")}));
        ASSERT_TRUE(Press({QStringLiteral("ctrl+s")}));
        EXPECT_TRUE(
            Person_.ReadMessage(ErrorTitle)
                .contains(QStringLiteral("\nEl archivo es demasiado grande para este disco.")));
        EXPECT_TRUE(BytesOf(Game_) == OldBytes);
        return;
    }
    // The person's folder becomes a disk on which the text has room once but not twice.
    const QString script =
        QStringLiteral("cp \"$0/juego.prg\" \"$0/../viejo\" && mount -t tmpfs -o size=64k tmpfs "
                       "\"$0\" && cp \"$0/../viejo\" \"$0/juego.prg\" && exec \"$1\"");
    ASSERT_TRUE(OpenChanged(mounting + QStringList{QStringLiteral("sh"), QStringLiteral("-c"),
                                                   script, QDir::cleanPath(PersonsFile({}))}));

    SaveInVain(QStringLiteral("El disco está lleno."));

    const QString asTheProgramSeesIt = QStringLiteral("/proc/%1/root").arg(Run_.ProcessId());
    EXPECT_TRUE(BytesOf(asTheProgramSeesIt + Game_) == OldBytes);
    const QDir folder(asTheProgramSeesIt + PersonsFile({}));
    EXPECT_EQ(folder.entryList(QDir::Files | QDir::Hidden),
              QStringList(QStringLiteral("juego.prg")));
    EXPECT_TRUE(ClosesWithQuestion(Game_));
}

TEST_F(FailingSave, InAReadOnlyFolderKeepsTheOldBytes) {
    ASSERT_TRUE(OpenChanged());
    ASSERT_TRUE(QFile::setPermissions(PersonsFile({}), QFile::ReadOwner | QFile::ExeOwner));
    SaveInVain(QStringLiteral("No hay permiso para escribir en la carpeta."));
    EXPECT_TRUE(BytesOf(Game_) == OldBytes);
    EXPECT_TRUE(ClosesWithQuestion(Game_));
}

TEST_F(FailingSave, OfAReadOnlyFileKeepsTheOldBytes) {
    ASSERT_TRUE(OpenChanged());
    ASSERT_TRUE(QFile::setPermissions(Game_, QFile::ReadOwner));
    SaveInVain(QStringLiteral("El archivo está protegido contra escritura."));
    EXPECT_TRUE(BytesOf(Game_) == OldBytes);
    EXPECT_TRUE(ClosesWithQuestion(Game_));
}

TEST_F(FailingSave, WhereAFolderHasTakenTheNameLeavesTheFolderAlone) {
    ASSERT_TRUE(OpenChanged());
    ASSERT_TRUE(QFile::remove(Game_));
    ASSERT_TRUE(QDir().mkdir(Game_));
    SaveInVain(QStringLiteral("El nombre pertenece a una carpeta."));
    EXPECT_TRUE(QDir(Game_).exists());
    EXPECT_TRUE(ClosesWithQuestion(Game_));
}

TEST_F(FailingSave, InAFolderThatHasGoneSaysSo) {
    ASSERT_TRUE(OpenChanged());
    const QString elsewhere = Place_.filePath(QStringLiteral("otros"));
    ASSERT_TRUE(QFile::rename(Place_.filePath(QStringLiteral("juegos")), elsewhere));
    SaveInVain(QStringLiteral("La carpeta ya no existe."));
    EXPECT_TRUE(BytesOf(elsewhere + QStringLiteral("/juego.prg")) == OldBytes);
    EXPECT_TRUE(ClosesWithQuestion(Game_));
}

TEST_F(FailingSave, BeforeTheDocumentClosesLeavesTheTextInTheCopy) {
    ASSERT_TRUE(OpenChanged());
    ASSERT_TRUE(QFile::setPermissions(Game_, QFile::ReadOwner));
    ASSERT_TRUE(Press({QStringLiteral("ctrl+w")}));
    ASSERT_TRUE(Person_.PressIn(QuestionTitle, {QStringLiteral("alt+s")}));
    CloseMessage(QStringLiteral("El archivo está protegido contra escritura."));
    EXPECT_TRUE(ShowsHelp());
    EXPECT_TRUE(BytesOf(Game_) == OldBytes);
}

TEST_F(FailingSave, SucceedsOnceTheReasonIsGone) {
    ASSERT_TRUE(OpenChanged());
    ASSERT_TRUE(QFile::setPermissions(Game_, QFile::ReadOwner));
    SaveInVain(QStringLiteral("El archivo está protegido contra escritura."));
    ASSERT_TRUE(QFile::setPermissions(Game_, AllOfOwner));
    ASSERT_TRUE(Press({QStringLiteral("ctrl+s")}));
    EXPECT_TRUE(BytesOnceThey('x' + OldBytes, Game_) == 'x' + OldBytes);
    EXPECT_TRUE(ClosesAtOnce(Game_));
}

} // namespace Quillbox
