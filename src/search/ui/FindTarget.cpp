// SPDX-License-Identifier: GPL-3.0-or-later
#include "search/ui/FindTarget.h"

#include <QEvent>

namespace Quillbox {

using Sci = QsciScintillaBase;

FindTarget::FindTarget(QObject *parent)
    : QObject(parent)
    , Count_(this) {
    connect(&Count_, &FindCount::Changed, this, &FindTarget::CountChanged);
}

FindTarget::~FindTarget() { Follow(nullptr); }

void FindTarget::Follow(QsciScintillaBase *editor) {
    if (Editor_ == editor)
        return;
    if (Editor_) {
        Editor_->disconnect(this);
        Editor_->removeEventFilter(this);
        FindMarks::Remove(ScintillaText(*Editor_));
    }
    Editor_ = editor;
    LoseScope();
    Marks_.BeginText();
    if (editor != nullptr) {
        FindMarks::Prepare(ScintillaText(*editor));
        connect(editor, &Sci::SCN_MODIFIED, this,
                [this](int position, int type, const char *, int length) {
                    OnModified(position, type, length);
                });
        connect(editor, &Sci::SCN_UPDATEUI, this, &FindTarget::OnUpdated);
        connect(editor, &QObject::destroyed, this, [this] {
            Editor_.clear(); // a widget says so before pointers to it are cleared
            TextReplaced();
        });
        editor->installEventFilter(this);
    }
    LookAgain();
}

void FindTarget::Look(const FindRequest &request) {
    if (std::exchange(Request_, request) != request)
        LookAgain();
}

void FindTarget::LookAgain() {
    TextHasChanged_ = false;
    Count_.Begin(Editor_, Task());
    Marks_.Forget();
    ShowMarks();
}

void FindTarget::ShowMarks() {
    if (Editor_)
        Marks_.Show(ScintillaText(*Editor_), Task());
}

bool FindTarget::LimitToSelection() {
    if (!Editor_)
        return false;
    const ScintillaText text(*Editor_);
    if (text.SelectionStart() == text.SelectionEnd())
        return false;
    Scope_ = MovingRange{text.SelectionStart(), text.SelectionEnd()};
    LookAgain();
    return true;
}

void FindTarget::Unlimit() {
    if (std::exchange(Scope_, std::nullopt))
        LookAgain();
}

void FindTarget::LoseScope() {
    if (std::exchange(Scope_, std::nullopt))
        emit ScopeLost();
}

void FindTarget::TextReplaced() {
    LoseScope();
    Marks_.BeginText();
    LookAgain();
}

/// The component is in the midst of a change here; marks wait until it tells that all is up to
/// date.
void FindTarget::OnModified(int position, int type, int length) {
    const bool isInsertion = (type & InsertionReport) != 0;
    if (!isInsertion && (type & DeletionReport) == 0)
        return;
    if (Scope_ && isInsertion)
        Scope_->Insert(position, length);
    else if (Scope_)
        Scope_->Delete(position, length);
    Marks_.Forget();
    if (!std::exchange(TextHasChanged_, true))
        Count_.Stop();
}

void FindTarget::OnUpdated(int changes) {
    if (std::exchange(TextHasChanged_, false))
        Count_.Begin(Editor_, Task());
    if ((changes & ~Sci::SC_UPDATE_SELECTION) != 0)
        ShowMarks();
    if ((changes & Sci::SC_UPDATE_SELECTION) != 0)
        emit CountChanged();
}

/// A larger editor shows more lines.
bool FindTarget::eventFilter(QObject *, QEvent *event) {
    if (event->type() == QEvent::Resize)
        QMetaObject::invokeMethod(this, &FindTarget::ShowMarks, Qt::QueuedConnection);
    return false;
}

} // namespace Quillbox
