// SPDX-License-Identifier: GPL-3.0-or-later
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <gmock/gmock.h>

namespace Quillbox {
namespace {

using testing::HasSubstr;

/// The program with a data folder of its own.
class ReferenceProgram : public testing::Test {
  protected:
    void SetUp() override {
        Write("Keywords.txt", "Cls\r\n");
        Write("QuickHelp.txt", "Cls - Borra la pantalla.\r\n");
        Write("Reference/Themes.txt",
              "tema: graphics\ngrupo: G\ntítulo: T\nintroducción: I\npalabras: Cls\n");
    }

    void Write(const QString &name, const QByteArray &bytes) {
        const QFileInfo path(Folder_.filePath("datos/" + name));
        ASSERT_TRUE(QDir().mkpath(path.path()));
        QFile file(path.filePath());
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        ASSERT_EQ(file.write(bytes), bytes.size());
    }

    int Run() {
        QProcess process;
        process.start(REFERENCE_PAGES, {Folder_.filePath("datos"), Folder_.filePath("páginas")});
        EXPECT_TRUE(process.waitForFinished());
        Errors = QString::fromUtf8(process.readAllStandardError()).toStdString();
        return process.exitCode();
    }

    QStringList Pages() const {
        return QDir(Folder_.filePath("páginas")).entryList(QDir::Files, QDir::Name);
    }

    std::string Errors;
    QTemporaryDir Folder_;
};

TEST_F(ReferenceProgram, WritesThePages) {
    EXPECT_EQ(Run(), 0) << Errors;
    EXPECT_EQ(Pages(),
              QStringList({"alfabetico.htm", "ejemplos.htm", "graphics.htm", "index.htm"}));
}

TEST_F(ReferenceProgram, WritesNothingWhenAWordHasNoTheme) {
    Write("Keywords.txt", "Cls\r\nFlip\r\n");
    Write("QuickHelp.txt", "Cls - Borra.\r\nFlip - Muestra.\r\n");
    EXPECT_EQ(Run(), 1);
    EXPECT_THAT(Errors, HasSubstr("the word Flip has no theme"));
    EXPECT_TRUE(Pages().isEmpty());
}

TEST_F(ReferenceProgram, NamesAFileThatIsMissing) {
    QFile::remove(Folder_.filePath("datos/QuickHelp.txt"));
    EXPECT_EQ(Run(), 1);
    EXPECT_THAT(Errors, HasSubstr("QuickHelp.txt cannot be read"));
}

TEST_F(ReferenceProgram, ReadsTheExamples) {
    Write("Ayuda/Ejemplos/borrar.bb", "; Borrar\r\n; Tema: cocina\r\n; Borra.\r\n");
    EXPECT_EQ(Run(), 1);
    EXPECT_THAT(Errors, HasSubstr("borrar.bb: there is no theme \"cocina\""));
}

} // namespace
} // namespace Quillbox
