// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/ui/ScintillaCompletion.h"

#include "editor/ui/CompletionPopup.h"
#include "editor/ui/ScintillaEditor.h"
#include "language/ColouringTokens.h"
#include "language/WordCompletion.h"

#include <QKeyEvent>

#include <algorithm>

namespace Quillbox {

namespace {

using Sci = QsciScintillaBase;

/// Bytes on either side of the caret that are looked at for the word there. A line may be long.
constexpr BytePosition LongestWord = 256;

constexpr int SmallestFont = 6;

BytePosition StartOfWordAt(const ScintillaText &text, BytePosition caret) {
    const BytePosition from = std::max(text.LineStart(text.LineOf(caret)), caret - LongestWord);
    const std::string_view before = text.Bytes(from, caret);
    return from + static_cast<BytePosition>(WordTouching(before, before.size()).Start);
}

/// What a word goes on with behind the caret.
std::string_view RestOfWordAt(const ScintillaText &text, BytePosition caret) {
    const BytePosition lineEnd = text.LineEnd(text.LineOf(caret));
    const std::string_view behind = text.Bytes(caret, std::min(lineEnd, caret + LongestWord));
    return behind.substr(
        0, std::min(behind.size(), static_cast<std::size_t>(
                                       std::find_if_not(behind.begin(), behind.end(), IsWordByte) -
                                       behind.begin())));
}

/// The editor's own font at the size at which it shows.
QFont ShownFont(const ScintillaText &text) {
    char family[256] = {};
    text.Send(Sci::SCI_STYLEGETFONT, Sci::STYLE_DEFAULT, reinterpret_cast<std::intptr_t>(family));
    const auto points = static_cast<int>(text.Send(Sci::SCI_STYLEGETSIZE, Sci::STYLE_DEFAULT) +
                                         text.Send(Sci::SCI_GETZOOM));
    return {QString::fromUtf8(family), std::max(points, SmallestFont)};
}

/// Where the line at `position` shows, at that position, in global coordinates.
QRect ShownPlace(const ScintillaEditor &editor, const ScintillaText &text, BytePosition position) {
    const auto height = static_cast<int>(text.Send(Sci::SCI_TEXTHEIGHT));
    return {editor.viewport()->mapToGlobal(text.PointAt(position)), QSize(1, height)};
}

/// Keys that may go on with the word, or that do nothing by themselves; the text tells afterwards.
bool MayGoOn(const QKeyEvent &key) {
    const bool modifier = key.key() >= Qt::Key_Shift && key.key() <= Qt::Key_ScrollLock;
    const bool dead = key.key() >= Qt::Key_AltGr; // AltGr and dead keys lie behind all others
    const bool character = !key.text().isEmpty() && key.text().at(0).isPrint();
    return modifier || dead || character || key.key() == Qt::Key_Backspace;
}

} // namespace

ScintillaCompletion::ScintillaCompletion(ScintillaEditor &editor)
    : QObject(&editor)
    , Editor_(editor)
    , Text_(editor) {
    editor.installEventFilter(this);
    editor.viewport()->installEventFilter(this);
    connect(&editor, &ScintillaEditor::TextChanged, this, &ScintillaCompletion::Follow);
    connect(&editor, &Sci::SCN_UPDATEUI, this, &ScintillaCompletion::Follow);
}

void ScintillaCompletion::Start(const Completions &candidates) {
    Close();
    Text_.Send(Sci::SCI_SETEMPTYSELECTION, Text_.Caret());
    WordStart_ = StartOfWordAt(Text_, Text_.Caret());
    Completions found = CompletionsOf(candidates, FromUtf8(TypedBytes()));
    if (found.size() == 1)
        return Insert(found.front().Word);
    if (found.empty())
        return;
    Candidates_ = candidates;
    Text_.Send(Sci::SCI_SCROLLCARET);
    Open(std::move(found));
}

bool ScintillaCompletion::IsOpen() const { return Popup_ && Popup_->isVisible(); }

void ScintillaCompletion::Open(Completions found) {
    if (!Popup_) {
        Popup_ = new CompletionPopup(&Editor_);
        connect(Popup_, &CompletionPopup::WordChosen, this,
                [this] { Insert(Popup_->CurrentWord().Word); });
    }
    Shown_ = TypedBytes();
    Popup_->SetWordFont(ShownFont(Text_));
    Popup_->SetWords(std::move(found));
    Popup_->ShowAt(ShownPlace(Editor_, Text_, WordStart_));
}

void ScintillaCompletion::Close() {
    if (Popup_)
        Popup_->hide();
    Candidates_.clear();
}

/// The list shows what still fits. It closes when the caret leaves the word.
void ScintillaCompletion::Follow() {
    if (!IsOpen())
        return;
    const std::string_view typed = TypedBytes();
    const bool inWord = Text_.Caret() >= WordStart_ && std::ranges::all_of(typed, IsWordByte) &&
                        Text_.Send(Sci::SCI_GETSELECTIONEMPTY) != 0;
    if (inWord && typed == Shown_)
        return;
    Completions found;
    if (inWord)
        found = CompletionsOf(Candidates_, FromUtf8(typed));
    if (found.empty())
        return Close();
    Open(std::move(found));
}

bool ScintillaCompletion::eventFilter(QObject *, QEvent *event) {
    if (!IsOpen())
        return false;
    switch (event->type()) {
    case QEvent::KeyPress:
        return TakeKey(static_cast<const QKeyEvent &>(*event));
    case QEvent::MouseButtonPress:
    case QEvent::Wheel:
    case QEvent::FocusOut:
    case QEvent::Hide:
    case QEvent::Resize:
        Close();
        break;
    default:
        break;
    }
    return false;
}

bool ScintillaCompletion::TakeKey(const QKeyEvent &key) {
    if ((key.modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier) {
        switch (key.key()) {
        case Qt::Key_Escape:
            Close();
            return true;
        case Qt::Key_Return:
        case Qt::Key_Enter:
        case Qt::Key_Tab:
            Insert(Popup_->CurrentWord().Word);
            return true;
        default:
            if (MoveBy(key.key()))
                return true;
        }
    }
    if (!MayGoOn(key))
        Close();
    return false;
}

bool ScintillaCompletion::MoveBy(int key) {
    const std::pair<int, int> steps[] = {{Qt::Key_Up, -1},
                                         {Qt::Key_Down, 1},
                                         {Qt::Key_PageUp, -Popup_->PageSize()},
                                         {Qt::Key_PageDown, Popup_->PageSize()}};
    const auto *found = std::ranges::find(steps, key, &std::pair<int, int>::first);
    if (found == std::end(steps))
        return false;
    Popup_->Move(found->second);
    return true;
}

/// Replaces what is typed of the word, as one undo step.
void ScintillaCompletion::Insert(const QString &word) {
    Close();
    const QString typed = FromUtf8(TypedBytes());
    const QString rest = FromUtf8(RestOfWordAt(Text_, Text_.Caret()));
    const qsizetype replaced = ReplacedBehindCaret(word, typed, rest);
    const BytePosition end = Text_.Caret() + rest.first(replaced).toUtf8().size();
    const std::string_view old = Text_.Bytes(WordStart_, end);
    if (FromUtf8(old) == word) {
        Text_.MoveCaret(end);
        return;
    }
    Text_.Send(Sci::SCI_SETSEL, WordStart_, end);
    Editor_.ReplaceSel(word);
}

std::string_view ScintillaCompletion::TypedBytes() const {
    return Text_.Bytes(WordStart_, Text_.Caret());
}

} // namespace Quillbox
