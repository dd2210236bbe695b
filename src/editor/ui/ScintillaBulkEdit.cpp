// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/ui/ScintillaBulkEdit.h"

namespace Quillbox {

namespace {

using Sci = QsciScintillaBase;

/// Begins and ends the tokens of a bulk edit in the undo history.
constexpr int KeptLinesToken = 0x4C4B;
constexpr int MovedLinesToken = 0x4C4D;
constexpr std::size_t TokensAtAnEnd = 3;

} // namespace

BulkChange::BulkChange(QsciScintillaBase &editor, BulkLines lines, BytePosition before,
                       BytePosition behind)
    : Editor_(editor)
    , Text_(editor)
    , Before_(before)
    , Behind_(behind)
    , Length_(Text_.Length())
    , LineCount_(Text_.LineCount())
    , EventMask_(Text_.Send(Sci::SCI_GETMODEVENTMASK)) {
    if (lines == BulkLines::Kept)
        Marks_.emplace(Text_);
    Text_.Send(Sci::SCI_SETMODEVENTMASK, Sci::SC_MOD_CONTAINER);
}

BulkChange::~BulkChange() {
    if (Marks_)
        Marks_->PutBack(Text_);
    Text_.Send(Sci::SCI_SETMODEVENTMASK, EventMask_);
    const auto start = static_cast<int>(Before_);
    const auto taken = static_cast<int>(Length_ - Behind_ - Before_);
    const auto put = static_cast<int>(Text_.Length() - Behind_ - Before_);
    const int lines = Text_.LineCount() - LineCount_;
    emit Editor_.SCN_MODIFIED(start, Sci::SC_MOD_DELETETEXT, nullptr, taken, 0, 0, 0, 0, 0, 0);
    emit Editor_.SCN_MODIFIED(start, Sci::SC_MOD_INSERTTEXT, nullptr, put, lines, 0, 0, 0, 0, 0);
}

BulkEdit::BulkEdit(QsciScintillaBase &editor, BulkLines lines, BytePosition before,
                   BytePosition behind)
    : Text_(editor)
    , Tokens_{lines == BulkLines::Kept ? KeptLinesToken : MovedLinesToken, static_cast<int>(before),
              static_cast<int>(behind)}
    , Change_(editor, lines, before, behind) {
    for (const int token : Tokens_)
        Text_.Send(Sci::SCI_ADDUNDOACTION, token);
}

BulkEdit::~BulkEdit() {
    for (auto token = Tokens_.rbegin(); token != Tokens_.rend(); ++token)
        Text_.Send(Sci::SCI_ADDUNDOACTION, *token);
}

BulkSteps::BulkSteps(QsciScintillaBase &editor)
    : Editor_(editor) {}

/// The tokens of one end come before the edits are taken back or done again, those of the other
/// end behind them.
void BulkSteps::TokenReported(int token) {
    if (Tokens_.empty() && token != KeptLinesToken && token != MovedLinesToken)
        return;
    Tokens_.push_back(token);
    if (Tokens_.size() == TokensAtAnEnd) {
        const BulkLines lines =
            Tokens_.front() == KeptLinesToken ? BulkLines::Kept : BulkLines::Moved;
        Change_.emplace(Editor_, lines, Tokens_[1], Tokens_[2]);
    } else if (Tokens_.size() == 2 * TokensAtAnEnd) {
        Tokens_.clear();
        Change_.reset();
    }
}

} // namespace Quillbox
