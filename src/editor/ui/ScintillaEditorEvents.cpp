// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/ui/ScintillaCarets.h"
#include "editor/ui/ScintillaEditor.h"
#include "editor/ui/ScintillaKeys.h"

#include <QContextMenuEvent>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMimeData>

namespace Quillbox {

namespace {

bool IsLineBreakKey(const QKeyEvent &event) {
    const bool enter = event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
    const auto others = Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;
    return enter && (event.modifiers() & others) == 0;
}

} // namespace

bool ScintillaEditor::event(QEvent *event) {
    bool handled = false;
    Perform([&] { handled = QsciScintillaBase::event(event); });
    return handled;
}

bool ScintillaEditor::viewportEvent(QEvent *event) {
    bool handled = false;
    Perform([&] { handled = QsciScintillaBase::viewportEvent(event); });
    return handled;
}

void ScintillaEditor::keyPressEvent(QKeyEvent *event) {
    emit KeyDown();
    const int control = ControlCharacterOf(*event);
    if (control != 0 && CharacterTyped && CharacterTyped(control))
        return event->accept();
    if (IsLineBreakKey(*event)) {
        InsertLineBreak();
        return event->accept();
    }
    if (event->key() == Qt::Key_Escape && CaretCount(Text_) > 1) {
        KeepMainCaret(Text_);
        return event->accept();
    }
    const QString characters = EditorCharacters(event->text());
    if (characters == event->text())
        return QsciScintillaBase::keyPressEvent(event);
    QKeyEvent typed(event->type(), event->key(), event->modifiers(), characters,
                    event->isAutoRepeat(), static_cast<quint16>(event->count()));
    QsciScintillaBase::keyPressEvent(&typed);
    event->setAccepted(typed.isAccepted());
}

/// A new line takes over the blanks and tabs that the line before it begins with.
void ScintillaEditor::InsertLineBreak() {
    if (CaretCount(Text_) == 1)
        return ReplaceSelection(LineBreakAt(Text_.SelectionStart()));
    ReplaceSelections(Text_, [this](const CaretPlace &caret) { return LineBreakAt(caret.Start); });
}

std::string ScintillaEditor::LineBreakAt(BytePosition position) const {
    const std::string_view before = Text_.Bytes(Text_.LineStart(Text_.LineOf(position)), position);
    const std::size_t indent = std::min(before.find_first_not_of(" \t"), before.size());
    std::string lineBreak(Text_.LineEndBytes());
    lineBreak += before.substr(0, indent);
    return lineBreak;
}

void ScintillaEditor::keyReleaseEvent(QKeyEvent *event) {
    QsciScintillaBase::keyReleaseEvent(event);
    if (!event->isAutoRepeat())
        emit KeyUp(WindowsKeyCodeOf(*event));
}

void ScintillaEditor::inputMethodEvent(QInputMethodEvent *event) {
    const QString characters = EditorCharacters(event->commitString());
    if (characters == event->commitString())
        return QsciScintillaBase::inputMethodEvent(event);
    QInputMethodEvent committed(event->preeditString(), event->attributes());
    committed.setCommitString(characters, event->replacementStart(), event->replacementLength());
    QsciScintillaBase::inputMethodEvent(&committed);
    event->setAccepted(committed.isAccepted());
}

void ScintillaEditor::mouseReleaseEvent(QMouseEvent *event) {
    QsciScintillaBase::mouseReleaseEvent(event);
    emit MouseReleased();
}

void ScintillaEditor::contextMenuEvent(QContextMenuEvent *event) {
    event->accept();
    emit ContextMenuRequested(event->globalPos());
}

void ScintillaEditor::focusInEvent(QFocusEvent *event) {
    QsciScintillaBase::focusInEvent(event);
    emit FocusReceived();
}

void ScintillaEditor::paintEvent(QPaintEvent *event) {
    PrepareLongLines();
    Colouring_.PrepareShownText();
    QsciScintillaBase::paintEvent(event);
}

/// What is pasted or dropped shows at once which characters cannot be kept.
QByteArray ScintillaEditor::fromMimeData(const QMimeData *source, bool &rectangular) const {
    QsciScintillaBase::fromMimeData(source, rectangular);
    return EditorBytes(source->text());
}

} // namespace Quillbox
