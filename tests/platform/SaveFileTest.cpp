// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/SaveFile.h"

#include "platform/TestFiles.h"

#include <cerrno>

namespace Quillbox {

namespace {

class SavingAFile : public FolderTest {
  protected:
    static std::optional<FileError> Save(const QString &path, const QByteArray &content) {
        return ReplaceContent(path, ProducerOf(content));
    }

    static void ExpectRefused(const QString &path, int code, const QString &text) {
        const std::optional<FileError> error = Save(path, "nuevo");
        ASSERT_TRUE(error.has_value()) << path.toStdString();
        EXPECT_EQ(error->Code, code);
        EXPECT_EQ(error->Text, text);
    }
};

} // namespace

TEST_F(SavingAFile, CreatesANewFile) {
    EXPECT_FALSE(Save(PathOf("ñandú.prg"), Pattern(10'000)));
    EXPECT_EQ(ReadTestFile(PathOf("ñandú.prg")), Pattern(10'000));
    EXPECT_EQ(Entries(), QStringList("ñandú.prg"));
}

TEST_F(SavingAFile, CreatesAnEmptyFileWhenNothingIsProduced) {
    EXPECT_FALSE(ReplaceContent(PathOf("a.prg"), [](const ByteSink &) {}));
    EXPECT_EQ(ReadTestFile(PathOf("a.prg")), QByteArray());
}

TEST_F(SavingAFile, TakesANameInTheCurrentFolder) {
    EXPECT_FALSE(Save("a.prg", "uno"));
    EXPECT_FALSE(Save("a.prg", "dos"));
    EXPECT_EQ(ReadTestFile(PathOf("a.prg")), "dos");
    EXPECT_EQ(Entries(), QStringList("a.prg"));
}

TEST_F(SavingAFile, ReplacesALongContentByAShortOne) {
    WriteTestFile(PathOf("a.prg"), Pattern(100'000));
    EXPECT_FALSE(Save(PathOf("a.prg"), "corto"));
    EXPECT_EQ(ReadTestFile(PathOf("a.prg")), "corto");
    EXPECT_EQ(Entries(), QStringList("a.prg"));
}

TEST_F(SavingAFile, RespectsTheUmaskForANewFile) {
    const mode_t before = ::umask(027);
    EXPECT_FALSE(Save(PathOf("a.prg"), "x"));
    ::umask(before);
    EXPECT_EQ(ModeOf(PathOf("a.prg")), 0640U);
}

TEST_F(SavingAFile, KeepsTheModeOfAnExistingFile) {
    WriteTestFile(PathOf("a.prg"), "x");
    for (const mode_t mode : {0755U, 0600U, 0666U, 0200U}) {
        SetMode(PathOf("a.prg"), mode);
        EXPECT_FALSE(Save(PathOf("a.prg"), "y"));
        EXPECT_EQ(ModeOf(PathOf("a.prg")), mode);
    }
}

TEST_F(SavingAFile, ReplacesTheTargetOfASymbolicLinkAndKeepsTheLink) {
    QDir().mkdir(PathOf("otra"));
    WriteTestFile(PathOf("otra/real.prg"), "viejo");
    ASSERT_TRUE(QFile::link("otra/real.prg", PathOf("intermedio.prg")));
    ASSERT_TRUE(QFile::link(PathOf("intermedio.prg"), PathOf("enlace.prg")));
    EXPECT_FALSE(Save(PathOf("enlace.prg"), "nuevo"));
    EXPECT_TRUE(S_ISLNK(StatusOf(PathOf("enlace.prg")).st_mode));
    EXPECT_TRUE(S_ISLNK(StatusOf(PathOf("intermedio.prg")).st_mode));
    EXPECT_EQ(ReadTestFile(PathOf("otra/real.prg")), "nuevo");
    EXPECT_EQ(QDir(PathOf("otra")).entryList(QDir::Files | QDir::Hidden), QStringList("real.prg"));
}

TEST_F(SavingAFile, CreatesTheTargetOfALinkThatLeadsNowhere) {
    ASSERT_TRUE(QFile::link("real.prg", PathOf("enlace.prg")));
    EXPECT_FALSE(Save(PathOf("enlace.prg"), "nuevo"));
    EXPECT_TRUE(S_ISLNK(StatusOf(PathOf("enlace.prg")).st_mode));
    EXPECT_EQ(ReadTestFile(PathOf("real.prg")), "nuevo");
}

TEST_F(SavingAFile, RefusesALinkToItself) {
    ASSERT_TRUE(QFile::link("enlace.prg", PathOf("enlace.prg")));
    ExpectRefused(PathOf("enlace.prg"), ELOOP,
                  "El archivo es un enlace que no lleva a ninguna parte.");
}

TEST_F(SavingAFile, ChangesAllNamesOfAFileWithHardLinks) {
    WriteTestFile(PathOf("a.prg"), Pattern(5000));
    SetMode(PathOf("a.prg"), 0640);
    ASSERT_EQ(::link(PathOf("a.prg").toUtf8(), PathOf("b.prg").toUtf8()), 0);
    EXPECT_FALSE(Save(PathOf("a.prg"), "nuevo"));
    EXPECT_EQ(ReadTestFile(PathOf("b.prg")), "nuevo");
    EXPECT_EQ(StatusOf(PathOf("a.prg")).st_nlink, 2U);
    EXPECT_EQ(ModeOf(PathOf("a.prg")), 0640U);
    EXPECT_EQ(Entries(), QStringList({"a.prg", "b.prg"}));
}

TEST_F(SavingAFile, NeverTouchesACopyThatAnEarlierSaveHasLeft) {
    WriteTestFile(PathOf("a.prg"), "viejo");
    WriteTestFile(PathOf("a.prg.antes-de-guardar"), "mi única copia");
    ASSERT_EQ(::link(PathOf("a.prg").toUtf8(), PathOf("b.prg").toUtf8()), 0);
    EXPECT_FALSE(Save(PathOf("a.prg"), "nuevo"));
    EXPECT_EQ(ReadTestFile(PathOf("a.prg.antes-de-guardar")), "mi única copia");
    EXPECT_EQ(Entries(), QStringList({"a.prg", "a.prg.antes-de-guardar", "b.prg"}));
}

TEST_F(SavingAFile, SavesANameOfTheGreatestLength) {
    const QString name(255, 'n');
    EXPECT_FALSE(Save(PathOf(name), "uno"));
    ASSERT_EQ(::link(PathOf(name).toUtf8(), PathOf("b.prg").toUtf8()), 0);
    EXPECT_FALSE(Save(PathOf(name), "dos"));
    EXPECT_EQ(ReadTestFile(PathOf("b.prg")), "dos");
    ExpectRefused(PathOf(QString(256, 'n')), ENAMETOOLONG,
                  "El nombre del archivo es demasiado largo.");
}

TEST_F(SavingAFile, RefusesAProtectedFile) {
    WriteTestFile(PathOf("a.prg"), "viejo");
    SetMode(PathOf("a.prg"), 0444);
    ExpectRefused(PathOf("a.prg"), EACCES, "El archivo está protegido contra escritura.");
    EXPECT_EQ(ReadTestFile(PathOf("a.prg")), "viejo");
    EXPECT_EQ(Entries(), QStringList("a.prg"));
}

TEST_F(SavingAFile, RefusesAFileThatOnlyOthersMayWrite) {
    WriteTestFile(PathOf("a.prg"), "viejo");
    SetMode(PathOf("a.prg"), 0446);
    SetMode(PathOf("."), 0777);
    const OrdinaryUser user;
    ExpectRefused(PathOf("a.prg"), EACCES, "El archivo está protegido contra escritura.");
    EXPECT_EQ(ReadTestFile(PathOf("a.prg")), "viejo");
}

TEST_F(SavingAFile, RefusesAFolderThatBelongsToSomebodyElse) {
    const OrdinaryUser user;
    ExpectRefused("/usr/quillbox.prg", EACCES, "No hay permiso para escribir en la carpeta.");
}

TEST_F(SavingAFile, RefusesAProtectedFolder) {
    QDir().mkdir(PathOf("fija"));
    WriteTestFile(PathOf("fija/a.prg"), "viejo");
    SetMode(PathOf("fija"), 0555);
    ExpectRefused(PathOf("fija/a.prg"), EACCES, "No hay permiso para escribir en la carpeta.");
    ExpectRefused(PathOf("fija/b.prg"), EACCES, "No hay permiso para escribir en la carpeta.");
    SetMode(PathOf("fija"), 0755);
    EXPECT_EQ(ReadTestFile(PathOf("fija/a.prg")), "viejo");
    EXPECT_EQ(QDir(PathOf("fija")).entryList(QDir::Files | QDir::Hidden), QStringList("a.prg"));
}

TEST_F(SavingAFile, RefusesAFolder) {
    QDir().mkdir(PathOf("carpeta"));
    ExpectRefused(PathOf("carpeta"), EISDIR, "El nombre pertenece a una carpeta.");
    ExpectRefused(PathOf("carpeta/"), EISDIR, "El nombre pertenece a una carpeta.");
}

TEST_F(SavingAFile, RefusesAFolderThatHasVanished) {
    ExpectRefused(PathOf("no/hay/a.prg"), ENOENT, "La carpeta ya no existe.");
    WriteTestFile(PathOf("archivo"), "x");
    ExpectRefused(PathOf("archivo/a.prg"), ENOTDIR, "La carpeta ya no existe.");
}

TEST_F(SavingAFile, RefusesDevicesAndPipes) {
    ASSERT_EQ(::mkfifo(PathOf("tubo").toUtf8(), 0600), 0);
    const QString text = "El nombre pertenece a un dispositivo y no a un archivo.";
    ExpectRefused(PathOf("tubo"), ENXIO, text);
    ASSERT_TRUE(QFile::link(PathOf("tubo"), PathOf("enlace")));
    ExpectRefused(PathOf("enlace"), ENXIO, text);
}

TEST_F(SavingAFile, RefusesNamesThatNoFileCanHave) {
    ExpectRefused(QString(), EINVAL, "El nombre del archivo no es válido.");
    ExpectRefused(PathOf("a") + QChar(0) + "b", EINVAL, "El nombre del archivo no es válido.");
    EXPECT_EQ(Entries(), QStringList());
}

TEST_F(SavingAFile, LeavesTheOldFileWhenProducingIsInterrupted) {
    WriteTestFile(PathOf("a.prg"), "viejo");
    const ByteProducer interrupted = [](const ByteSink &sink) {
        sink("nuevo");
        throw std::bad_alloc();
    };
    EXPECT_THROW(ReplaceContent(PathOf("a.prg"), interrupted), std::bad_alloc);
    EXPECT_EQ(ReadTestFile(PathOf("a.prg")), "viejo");
    ASSERT_EQ(::link(PathOf("a.prg").toUtf8(), PathOf("b.prg").toUtf8()), 0);
    EXPECT_THROW(ReplaceContent(PathOf("a.prg"), interrupted), std::bad_alloc);
    EXPECT_EQ(ReadTestFile(PathOf("a.prg")), "viejo");
    EXPECT_EQ(Entries(), QStringList({"a.prg", "b.prg"}));
}

} // namespace Quillbox
