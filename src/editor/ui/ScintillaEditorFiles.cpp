// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/ui/ScintillaEditor.h"
#include "editor/ui/ScintillaFiles.h"
#include "surfaces/Dialogs.h"

namespace Quillbox {

bool ScintillaEditor::OpenFile(const QString &path) {
    const std::optional<FileError> error = LoadAnsiFile(Text_, path, [this] { SetUpDocument(); });
    if (error) {
        ShowError(
            QStringLiteral("No se ha podido abrir el archivo %1.\n%2").arg(path, error->Text));
        return false;
    }
    Colouring_.TextReplaced();
    TellOtherText();
    return true;
}

bool ScintillaEditor::SaveFile(const QString &path) {
    if (const std::optional<FileError> error = SaveAnsiFile(Text_, path)) {
        TellSaveFailure(path, *error);
        return false;
    }
    Perform([this] { Text_.Send(SCI_SETSAVEPOINT); });
    return true;
}

void ScintillaEditor::TellSaveFailure(const QString &path, const FileError &error) {
    QString text =
        QStringLiteral("No se ha podido guardar el archivo %1.\n%2").arg(path, error.Text);
    if (const std::optional<QString> copy = SaveRescueCopy(Text_, path))
        text += QStringLiteral("\n\nHay una copia del texto en %1.").arg(*copy);
    ShowError(text);
}

void ScintillaEditor::ShowError(const QString &text) {
    Dialogs_.ShowMessage(
        {text, QStringLiteral("Error"), MessageIcon::Critical, MessageButtons::Ok});
}

bool ScintillaEditor::IsModified() const { return Text_.Send(SCI_GETMODIFY) != 0; }

void ScintillaEditor::TakeContentsFrom(EditorControl &other) {
    auto &source = dynamic_cast<ScintillaEditor &>(other);
    if (&source == this)
        return;
    emit source.TextIsLeaving();
    Text_.Send(SCI_SETDOCPOINTER, 0, source.Text_.Send(SCI_GETDOCPOINTER));
    Styles_.TextReplaced();
    Colouring_.TakeOver(source.Colouring_);
    Text_.Send(SCI_SETZOOM, source.Text_.Send(SCI_GETZOOM));
    LineIsHighlighted_ = source.LineIsHighlighted_;
    Text_.Send(SCI_SETSEL, source.Text_.Send(SCI_GETANCHOR), source.Text_.Caret());
    Text_.Send(SCI_SETFIRSTVISIBLELINE, source.Text_.Send(SCI_GETFIRSTVISIBLELINE));
    Text_.Send(SCI_SETXOFFSET, source.Text_.Send(SCI_GETXOFFSET));
    TellOtherText();
}

void ScintillaEditor::TellOtherText() {
    Styles_.TextLinesChanged();
    emit OtherTextShown();
    TellChanges();
}

} // namespace Quillbox
