// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "editor/ui/ScintillaBulkEdit.h"
#include "editor/ui/ScintillaColouring.h"
#include "editor/ui/ScintillaStyles.h"
#include "surfaces/EditorControl.h"

#include <Qsci/qsciscintillabase.h>

#include <QPoint>

#include <functional>

namespace Quillbox {

class Dialogs;
class EditorPrinter;
class ScintillaCompletion;
struct FileError;

/// The editor of one document. What a person does arrives as signals; in a signal the text, the
/// caret and the modified flag already are as the action left them.
class ScintillaEditor final : public QsciScintillaBase, public EditorControl {
    Q_OBJECT
  public:
    ScintillaEditor(const LanguageCatalogue &languages, Dialogs &dialogs,
                    QWidget *parent = nullptr);
    ~ScintillaEditor() override;

    /// Asked before a control character typed with Ctrl (Ctrl+A is 1 ... Ctrl+Z is 26) reaches the
    /// control's own keys; true ends the key there.
    std::function<bool(int code)> CharacterTyped;

    void SetLanguage(const QString &name) override;
    void SetColorSyntax(bool on) override;
    void SetColor(ColorSlot slot, Color color) override;
    void SetFontStyle(FontStyleClass textClass, int style) override;
    void SetFontName(const QString &name) override;
    void SetFontSize(int points) override;
    void SetTabSize(int columns) override;
    void SetLineNumbers(bool shown) override;

    int LineCount() const override;
    QString LineText(LineIndex line) const override;
    void VisitLines(const LineVisitor &visit) const override;
    void SetLinePosition(LineIndex line) override;
    QString CurrentWord() const override;
    TokenClass CurrentTokenClass() const override;

    TextRange GetSel() const override;
    void DeleteSel() override;
    bool CanCopy() const override;
    void Copy() override;
    bool CanCut() const override;
    void Cut() override;
    bool CanPaste() const override;
    void Paste() override;
    bool CanUndo() const override;
    void Undo() override;
    bool CanRedo() const override;
    void Redo() override;

    bool OpenFile(const QString &path) override;
    bool SaveFile(const QString &path) override;
    bool IsModified() const override;
    QString Text() const override;
    /// `other` must be a ScintillaEditor.
    void TakeContentsFrom(EditorControl &other) override;
    void SetFocus() override;
    void Print(const QString &fileName) override;
    /// Prints the first lines on a printer that is set up already.
    void PrintOn(EditorPrinter &printer, int lineCount);

    void SetHighlightedLine(LineIndex line) override;
    void SetTopIndex(LineIndex line) override;
    void SetCaretPos(TextPosition position) override;
    void ExecuteCommand(EditorCommand command) override;
    void CompleteWord(const Completions &candidates) override;
    void InsertText(const QString &text, TextPosition position) override;
    void AsOneUndoStep(const std::function<void()> &edits) override;
    void ReplaceSel(const QString &text) override;

  signals:
    /// After each edit, undo and redo; not when the control gets another text.
    void TextChanged();
    void ModifiedChanged(bool modified);
    /// The control got another text, from a file or another editor.
    void OtherTextShown();
    /// Another editor is about to take this one's text over.
    void TextIsLeaving();
    /// FindAndReplace, FindNext or FindPrevious is to be carried out on this editor.
    void FindRequested(EditorCommand command);
    /// Before the key does anything; repeated while it is held.
    void KeyDown();
    /// Once per key, when it is let go: 13 Enter, 8 Backspace, 46 Delete, letters and digits their
    /// ASCII code, 0 for any other key.
    void KeyUp(int windowsKeyCode);
    void MouseReleased();
    /// Told before the next paint, once for all that moved it since the last one.
    void CaretMoved();
    void ContextMenuRequested(QPoint globalPosition);
    void FocusReceived();

  protected:
    bool event(QEvent *event) override;
    bool viewportEvent(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;
    void inputMethodEvent(QInputMethodEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    QByteArray fromMimeData(const QMimeData *source, bool &rectangular) const override;

  private:
    void SetUpControl();
    void AddAssistants();
    void SetUpDocument();
    void FollowLanguage(const QString &name, LanguageChange change);
    void PrepareLongLines();
    void InsertLineBreak();
    std::string LineBreakAt(BytePosition position) const;
    bool PasteLineByLine();
    void ReplaceSelection(std::string_view utf8);
    std::size_t CaretInLine(LineIndex line) const;
    /// About to happen, one report for each stretch of text.
    void OnModified(int position, int type, const char *text, int length);
    /// Runs `action`, then tells what it changed, once for the outermost action.
    void Perform(const std::function<void()> &action);
    void TellChanges();
    void TellChangesSoon();
    void TellOtherText();
    void TellSaveFailure(const QString &path, const FileError &error);
    void ShowError(const QString &text);

    const LanguageCatalogue &Languages_;
    Dialogs &Dialogs_;
    ScintillaText Text_;
    ScintillaStyles Styles_;
    BulkSteps BulkSteps_;
    mutable ScintillaColouring Colouring_; ///< asking for a token's class colours its line
    ScintillaCompletion *Completion_ = nullptr;
    QString Language_;
    int ActionDepth_ = 0;
    bool WillTellChanges_ = false;
    bool TextHasChanged_ = false;
    bool KnownModified_ = false;
    bool LineIsHighlighted_ = false;
    bool ReadyForLongLines_ = false;
};

} // namespace Quillbox
