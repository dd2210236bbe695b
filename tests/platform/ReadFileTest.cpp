// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/TestFiles.h"
#include "platform/linux/LinuxFileSystem.h"

#include <cerrno>
#include <vector>

namespace Quillbox {

namespace {

struct ReadResult {
    std::optional<FileError> Error;
    QByteArray Content;
    std::vector<std::size_t> PieceSizes;
    std::vector<std::size_t> AnnouncedSizes;
};

ReadResult ReadAll(const QString &path, const SystemCalls &calls = {}) {
    ReadResult result;
    result.Error = ReadFileBytes(
        path,
        [&result](std::string_view piece, std::size_t fileSize) {
            result.Content.append(QByteArrayView(piece));
            result.PieceSizes.push_back(piece.size());
            result.AnnouncedSizes.push_back(fileSize);
        },
        LinuxFileSystem(calls));
    return result;
}

class ReadingAFile : public FolderTest {
  protected:
    static void ExpectUnreadable(const QString &path, int code, const QString &text) {
        const std::optional<FileError> error = ReadAll(path).Error;
        ASSERT_TRUE(error.has_value()) << path.toStdString();
        EXPECT_EQ(error->Code, code);
        EXPECT_EQ(error->Text, text);
    }
};

} // namespace

TEST_F(ReadingAFile, HandsOverTheContentInPiecesOfOneMebibyte) {
    const QByteArray content = Pattern((2 << 20) + 17);
    WriteTestFile(PathOf("a.prg"), content);
    const ReadResult result = ReadAll(PathOf("a.prg"));
    EXPECT_FALSE(result.Error);
    EXPECT_EQ(result.Content, content);
    EXPECT_EQ(result.PieceSizes, (std::vector<std::size_t>{1 << 20, 1 << 20, 17}));
    EXPECT_EQ(result.AnnouncedSizes, std::vector<std::size_t>(3, (2 << 20) + 17));
}

TEST_F(ReadingAFile, HandsOverNothingOfAnEmptyFile) {
    WriteTestFile(PathOf("a.prg"), "");
    const ReadResult result = ReadAll(PathOf("a.prg"));
    EXPECT_FALSE(result.Error);
    EXPECT_TRUE(result.PieceSizes.empty());
}

TEST_F(ReadingAFile, SaysThatAFileIsMissing) {
    ExpectUnreadable(PathOf("no.prg"), ENOENT, "El archivo no existe.");
    ExpectUnreadable(QString(), ENOENT, "El archivo no existe.");
    WriteTestFile(PathOf("archivo"), "x");
    ExpectUnreadable(PathOf("archivo/a.prg"), ENOTDIR, "El archivo no existe.");
}

TEST_F(ReadingAFile, RefusesAFolder) {
    ExpectUnreadable(PathOf("."), EISDIR, "El nombre pertenece a una carpeta.");
}

TEST_F(ReadingAFile, RefusesDevicesAndPipesWithoutWaitingForThem) {
    ASSERT_EQ(::mkfifo(PathOf("tubo").toUtf8(), 0600), 0);
    ExpectUnreadable(PathOf("tubo"), ENXIO,
                     "El nombre pertenece a un dispositivo y no a un archivo.");
}

TEST_F(ReadingAFile, RefusesANameThatNoFileCanHave) {
    ExpectUnreadable(PathOf("a") + QChar(0), EINVAL, "El nombre del archivo no es válido.");
}

TEST_F(ReadingAFile, RefusesAFileThatMayNotBeRead) {
    WriteTestFile(PathOf("a.prg"), "x");
    SetMode(PathOf("a.prg"), 0);
    SetMode(PathOf("."), 0755);
    const OrdinaryUser user;
    ExpectUnreadable(PathOf("a.prg"), EACCES, "No hay permiso para leer el archivo.");
}

TEST_F(ReadingAFile, SaysThatTheDiskFailedInTheMiddle) {
    WriteTestFile(PathOf("a.prg"), Pattern(3 << 20));
    SystemCalls calls;
    int reads = 0;
    calls.Read = [&reads](int descriptor, void *buffer, std::size_t size) -> ssize_t {
        if (++reads < 3)
            return ::read(descriptor, buffer, size);
        errno = EIO;
        return -1;
    };
    const ReadResult result = ReadAll(PathOf("a.prg"), calls);
    ASSERT_TRUE(result.Error);
    EXPECT_EQ(result.Error->Text, "El disco ha fallado al leer.");
}

TEST_F(ReadingAFile, GoesOnAfterShortAndInterruptedReads) {
    WriteTestFile(PathOf("a.prg"), Pattern(100));
    SystemCalls calls;
    int reads = 0;
    calls.Read = [&reads](int descriptor, void *buffer, std::size_t) -> ssize_t {
        if (++reads % 2 == 0)
            return ::read(descriptor, buffer, 7);
        errno = EINTR;
        return -1;
    };
    const ReadResult result = ReadAll(PathOf("a.prg"), calls);
    EXPECT_FALSE(result.Error);
    EXPECT_EQ(result.Content, Pattern(100));
}

TEST_F(ReadingAFile, NumbersAnErrorThatHasNoText) {
    WriteTestFile(PathOf("a.prg"), "x");
    SystemCalls calls;
    calls.Fstat = [](int, struct stat *) {
        errno = 9999;
        return -1;
    };
    EXPECT_EQ(ReadAll(PathOf("a.prg"), calls).Error->Text,
              "El sistema ha devuelto el error número 9999.");
}

} // namespace Quillbox
