// SPDX-License-Identifier: GPL-3.0-or-later
// Steps of two characters each in the first line, what is done and a number, and a file behind it:
// the editor opens the file, and after each step it holds what a plain text would, with as many
// steps to undo; saved, the file holds those bytes; with everything undone, those of the beginning.
#include "Fuzz.h"

#include "base/AnsiText.h"
#include "editor/LineCommands.h"
#include "editor/ui/LanguageCatalogue.h"
#include "editor/ui/PlainTextModel.h"
#include "editor/ui/ScintillaEditor.h"
#include "editor/ui/ScintillaOffsets.h"
#include "fakes/FakeSystem.h"

#include <QApplication>
#include <QFile>
#include <QTemporaryDir>

#include <optional>

using namespace Quillbox;

namespace {

using Sci = QsciScintillaBase;

constexpr qsizetype LongestRun = 2 * 64; ///< more steps find no more and take long

/// What is put in; the last one holds a letter that the code page lacks.
const QString &Piece(int number) {
    static const QString Pieces[] = {QString(),
                                     QStringLiteral("a"),
                                     QStringLiteral("\n"),
                                     QStringLiteral("\r"),
                                     QStringLiteral("\r\n"),
                                     QStringLiteral("\t"),
                                     QStringLiteral("// "),
                                     QStringLiteral("\"a\\"),
                                     QStringLiteral("Function uno%(dos#)\n"),
                                     QString(QChar(u'\0')),
                                     QString::fromUtf8("a\xC3\xB1\xE2\x82\xAC"),
                                     QString::fromUtf8("\xCE\xA9")};
    return Pieces[static_cast<std::size_t>(number) % std::size(Pieces)];
}

QByteArray BytesIn(const QString &path) {
    QFile file(path);
    Require(file.open(QIODevice::ReadOnly));
    return file.readAll();
}

/// One editor for all inputs.
class EditorAgainstText {
  public:
    EditorAgainstText()
        : Dialogs_(Log_)
        , Editor_(Languages_, Dialogs_)
        , Text_(Editor_)
        , Offsets_(*Editor_.findChild<ScintillaOffsets *>()) {
        LanguageDefinition language;
        language.SingleLineComment = QStringLiteral("//");
        language.Keywords = QStringLiteral("\nFUNCTION");
        Languages_.RegisterLanguage(QStringLiteral("fuzz"), language);
        Editor_.SetLanguage(QStringLiteral("fuzz"));
        Editor_.SetColorSyntax(true);
    }

    void Run(const QByteArray &steps, const QByteArray &content) {
        Open(content);
        for (qsizetype step = 0; step + 1 < steps.size(); step += 2) {
            Do(steps[step], static_cast<unsigned char>(steps[step + 1]));
            Check();
        }
        UndoSome(static_cast<int>(steps.size()));
        Check();
        Require(Editor_.Text() == FromAnsi(content));
    }

  private:
    void Open(const QByteArray &content) {
        QFile file(File_);
        Require(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
        file.close();
        Require(Editor_.OpenFile(File_) && !Editor_.IsModified());
        Model_.emplace(FromAnsi(content));
        Check();
    }

    void Do(char what, int number) {
        TakeSelectionOver();
        switch (what) {
        case 'p':
            return Text_.MoveCaret(Place(number));
        case 's':
            Text_.Send(Sci::SCI_SETSEL, Text_.Send(Sci::SCI_GETANCHOR), Place(number));
            return;
        case 'i':
            return Replace(Piece(number));
        case 'd':
            Editor_.DeleteSel();
            return Model_->Replace(Model_->Start(), Model_->End(), {});
        case 'x':
            return DeleteNext();
        case 'u':
            return UndoSome(number % 8);
        case 'r':
            return RedoSome(number % 8);
        case 'b':
            return Editor_.ExecuteCommand(EditorCommand::ToggleBookmark);
        case '>':
            return ShiftLines(IndentLines);
        case '<':
            return ShiftLines(OutdentLines);
        case 'w':
            return Save();
        default:
            return;
        }
    }

    BytePosition Place(int number) {
        const int place = number % (Model_->Length() + 1);
        return Offsets_.PositionOf(Model_->OutsideLineEnd(place));
    }
    void TakeSelectionOver() {
        Model_->Select(Offsets_.OffsetOf(Text_.Send(Sci::SCI_GETANCHOR)),
                       Offsets_.OffsetOf(Text_.Caret()));
    }
    void Replace(const QString &text) {
        Editor_.ReplaceSel(text);
        Model_->Replace(Model_->Start(), Model_->End(), FromAnsi(ToAnsi(text)));
    }
    /// Deleting one letter after the other would be a single step to undo.
    void DeleteNext() {
        Editor_.AsOneUndoStep(
            [this] { Editor_.ExecuteCommand(EditorCommand::DeleteNextCharacter); });
        const bool isSelected = Model_->Start() != Model_->End();
        Model_->Replace(Model_->Start(), isSelected ? Model_->End() : Model_->After(Model_->End()),
                        {});
    }
    /// Only tabs at the beginning of lines come or go.
    void ShiftLines(void (*command)(EditorControl &)) {
        const QString before = Model_->Text();
        command(Editor_);
        const QString after = Editor_.Text();
        Require(QString(after).remove(u'\t') == QString(before).remove(u'\t'));
        if (after != before)
            Model_->Replace(0, Model_->Length(), after);
    }
    void UndoSome(int steps) {
        for (; steps > 0 && Model_->CanUndo(); --steps) {
            Editor_.Undo();
            Model_->Undo();
        }
    }
    void RedoSome(int steps) {
        for (; steps > 0 && Model_->CanRedo(); --steps) {
            Editor_.Redo();
            Model_->Redo();
        }
    }
    void Save() {
        Require(Editor_.SaveFile(File_) && !Editor_.IsModified());
        Require(BytesIn(File_) == ToAnsi(Model_->Text()));
    }

    void Check() {
        Require(Editor_.Text() == Model_->Text());
        Require(Editor_.CanUndo() == Model_->CanUndo() && Editor_.CanRedo() == Model_->CanRedo());
        Require(Offsets_.Count() == Model_->Length());
        int lines = 0;
        Editor_.VisitLines([&](LineIndex line, std::string_view utf8) {
            Require(line.Value == lines++ && FromUtf8(utf8) == Editor_.LineText(line));
            return true;
        });
        Require(lines == Editor_.LineCount());
        Editor_.CurrentTokenClass();
        Require(Dialogs_.Messages.empty());
    }

    QTemporaryDir Folder_;
    const QString File_ = Folder_.filePath(QStringLiteral("texto.bb"));
    CallLog Log_;
    FakeDialogs Dialogs_;
    LanguageCatalogue Languages_;
    ScintillaEditor Editor_;
    ScintillaText Text_;
    ScintillaOffsets &Offsets_;
    std::optional<PlainTextModel> Model_;
};

} // namespace

/// The library of the system's fonts keeps what it read.
extern "C" const char *__lsan_default_suppressions() { return "leak:libfontconfig"; }

extern "C" int LLVMFuzzerInitialize(int *argc, char ***argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    static const QApplication Application(*argc, *argv);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    static EditorAgainstText Editor;
    QByteArray content = BytesOf(data, size);
    const QByteArray steps = TakeLine(content).left(LongestRun);
    Editor.Run(steps, content);
    return 0;
}
