// SPDX-License-Identifier: GPL-3.0-or-later
#include "EditorFixture.h"

#include <QKeyEvent>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QStandardPaths>

#include <csignal>
#include <random>

#include <sys/resource.h>

namespace Quillbox {

using EditorFiles = EditorTest;

namespace {

QByteArray AllBytes() {
    QByteArray bytes;
    for (int code = 0; code < 256; ++code)
        bytes += static_cast<char>(code);
    return bytes;
}

QByteArray RandomBytes(unsigned seed, int size) {
    std::mt19937 random(seed);
    QByteArray bytes;
    for (int count = 0; count < size; ++count)
        bytes += static_cast<char>(random());
    return bytes;
}

/// While it lives, no file can grow beyond some bytes, as on a full disk.
class FullDisk {
  public:
    explicit FullDisk(rlim_t bytes) {
        getrlimit(RLIMIT_FSIZE, &Before_);
        const rlimit limit{bytes, Before_.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limit);
        Handler_ = std::signal(SIGXFSZ, SIG_IGN);
    }
    ~FullDisk() {
        setrlimit(RLIMIT_FSIZE, &Before_);
        std::signal(SIGXFSZ, Handler_);
    }
    FullDisk(const FullDisk &) = delete;
    FullDisk &operator=(const FullDisk &) = delete;

  private:
    rlimit Before_{};
    void (*Handler_)(int) = nullptr;
};

} // namespace

TEST_F(EditorFiles, ComeBackAsTheyWere) {
    const QByteArray cases[] = {
        "",
        "\n",
        "\r",
        "\r\n",
        "\n\r",
        "a",
        "a\r\nb\n",
        "a\rb\r\n",
        "\r\r\n\n",
        AllBytes(),
        AllBytes() + AllBytes(),
        "a\0b\0",
        "\x81\x8D",
        "\xC3\xB1",
        "\xEF\xBB\xBF"
        "a",
        QByteArray("\0\0\0", 3),
        QByteArray("fin sin l\xEDnea"),
    };
    for (const QByteArray &bytes : cases) {
        Load(bytes);
        ASSERT_TRUE(Editor->SaveFile(PathOf("copia.bb")));
        EXPECT_EQ(Read(PathOf("copia.bb")), bytes) << bytes.toPercentEncoding().constData();
    }
}

TEST_F(EditorFiles, ComeBackAsTheyWereWhateverTheyHold) {
    for (unsigned seed = 0; seed < 60; ++seed) {
        const QByteArray bytes = RandomBytes(seed, static_cast<int>(seed * seed * 7));
        Load(bytes);
        ASSERT_TRUE(Editor->SaveFile(PathOf("copia.bb")));
        ASSERT_EQ(Read(PathOf("copia.bb")), bytes) << "seed " << seed;
    }
}

TEST_F(EditorFiles, ComeBackAsTheyWereAcrossTheEndsOfPieces) {
    // Three-byte characters at every offset from the places where texts are cut.
    const QByteArray euros(3 * 1024 * 1024 + 17, '\x80');
    for (int shift = 0; shift < 3; ++shift) {
        const QByteArray bytes = QByteArray(shift, 'x') + euros;
        Load(bytes);
        ASSERT_TRUE(Editor->SaveFile(PathOf("copia.bb")));
        ASSERT_TRUE(Read(PathOf("copia.bb")) == bytes) << shift;
    }
}

TEST_F(EditorFiles, AreUnmodifiedWithNothingToUndoWhenLoaded) {
    Type("antes");
    Load("uno\r\ndos");
    EXPECT_FALSE(Editor->IsModified());
    EXPECT_FALSE(Editor->CanUndo());
    EXPECT_EQ(Caret(), At(0, 0));
    Type("x");
    Editor->Undo();
    EXPECT_EQ(Editor->Text(), "uno\r\ndos");
    EXPECT_FALSE(Editor->IsModified());
}

TEST_F(EditorFiles, AreNoEditWhenLoadedButTellTheModifiedFlag) {
    const QString path = Write("otro.bb", "uno\ndos\n");
    Type("antes");
    QSignalSpy changes(Editor.get(), &ScintillaEditor::TextChanged);
    QSignalSpy modified(Editor.get(), &ScintillaEditor::ModifiedChanged);
    ASSERT_TRUE(Editor->OpenFile(path));
    QCoreApplication::processEvents();
    EXPECT_EQ(changes.count(), 0);
    ASSERT_EQ(modified.count(), 1);
    EXPECT_FALSE(modified[0][0].toBool());
}

TEST_F(EditorFiles, LoseTheirBookmarksWhenLoadedAgain) {
    Load("uno\ndos");
    Editor->ExecuteCommand(EditorCommand::ToggleBookmark);
    Load("uno\ndos");
    Editor->SetCaretPos(At(1, 0));
    Editor->ExecuteCommand(EditorCommand::FirstBookmark);
    EXPECT_EQ(Caret(), At(1, 0));
}

TEST_F(EditorFiles, AreNoLongerModifiedWhenSaved) {
    Type("texto");
    EXPECT_TRUE(Editor->IsModified());
    QSignalSpy modified(Editor.get(), &ScintillaEditor::ModifiedChanged);
    ASSERT_TRUE(Editor->SaveFile(PathOf("nuevo.bb")));
    EXPECT_FALSE(Editor->IsModified());
    ASSERT_EQ(modified.count(), 1);
    EXPECT_FALSE(modified[0][0].toBool());
    EXPECT_TRUE(Editor->CanUndo());
    EXPECT_EQ(Read(PathOf("nuevo.bb")), "texto");
}

TEST_F(EditorFiles, GiveTheirLineEndToNewLines) {
    const std::pair<QByteArray, QByteArray> cases[] = {
        {"a\r\nb\n", "\r\na\r\nb\n"}, {"a\nb\r\n", "\na\nb\r\n"}, {"a\rb\r\n", "\ra\rb\r\n"}};
    for (const auto &[loaded, expected] : cases) {
        Load(loaded);
        QKeyEvent enter(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, "\r");
        QCoreApplication::sendEvent(Editor.get(), &enter);
        EXPECT_EQ(Editor->Text().toLatin1(), expected);
    }
}

TEST_F(EditorFiles, ThatCannotBeReadLeaveTheTextAsItWas) {
    Load("uno\ndos\ntres");
    Editor->SetCaretPos(At(1, 1));
    Type("x");
    const QString missing = PathOf("falta.bb");
    EXPECT_FALSE(Editor->OpenFile(missing));
    EXPECT_EQ(Editor->Text(), "uno\ndxos\ntres");
    EXPECT_EQ(Caret(), At(1, 2));
    EXPECT_TRUE(Editor->IsModified());
    EXPECT_TRUE(Editor->CanUndo());
    ASSERT_EQ(Questions.Messages.size(), 1U);
    const Message &message = Questions.Messages[0];
    EXPECT_EQ(message.Caption, "Error");
    EXPECT_EQ(message.Icon, MessageIcon::Critical);
    EXPECT_EQ(message.Buttons, MessageButtons::Ok);
    EXPECT_TRUE(message.Text.startsWith("No se ha podido abrir el archivo " + missing + ".\n"))
        << message.Text.toStdString();
    EXPECT_GT(message.Text.section('\n', 1).size(), 5);
}

TEST_F(EditorFiles, ThatAreFoldersCannotBeRead) {
    EXPECT_FALSE(Editor->OpenFile(Folder.path()));
    EXPECT_EQ(Questions.Messages.size(), 1U);
}

TEST_F(EditorFiles, ThatCannotBeSavedStayModifiedAndAreRescued) {
    Load("uno");
    Type("dos ");
    const QString path = PathOf("no/existe/juego.bb");
    EXPECT_FALSE(Editor->SaveFile(path));
    EXPECT_TRUE(Editor->IsModified());
    EXPECT_EQ(Editor->Text(), "dos uno");
    ASSERT_EQ(Questions.Messages.size(), 1U);
    const Message &message = Questions.Messages[0];
    EXPECT_EQ(message.Caption, "Error");
    EXPECT_EQ(message.Icon, MessageIcon::Critical);
    EXPECT_TRUE(message.Text.startsWith("No se ha podido guardar el archivo " + path + ".\n"))
        << message.Text.toStdString();
    const QRegularExpression place("Hay una copia del texto en (.*juego\\.bb)\\.$");
    const QString copy = place.match(message.Text).captured(1);
    ASSERT_FALSE(copy.isEmpty()) << message.Text.toStdString();
    EXPECT_TRUE(copy.startsWith(
        QStandardPaths::writableLocation(QStandardPaths::AppLocalDataLocation) + "/Rescate/"));
    EXPECT_EQ(Read(copy), "dos uno");
    QFile::remove(copy);
}

TEST_F(EditorFiles, KeepTheirOldBytesWhenTheDiskIsFull) {
    const QString path = Write("juego.bb", "viejo");
    ASSERT_TRUE(Editor->OpenFile(path));
    Type(QString(100000, 'x'));
    {
        const FullDisk full(4096);
        EXPECT_FALSE(Editor->SaveFile(path));
    }
    EXPECT_EQ(Read(path), "viejo");
    EXPECT_TRUE(Editor->IsModified());
    ASSERT_EQ(Questions.Messages.size(), 1U);
    EXPECT_FALSE(Questions.Messages[0].Text.contains("Hay una copia"));
}

} // namespace Quillbox
