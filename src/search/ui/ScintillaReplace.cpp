// SPDX-License-Identifier: GPL-3.0-or-later
#include "search/ui/ScintillaReplace.h"

#include "editor/ui/ScintillaBulkEdit.h"
#include "editor/ui/ScintillaPieces.h"
#include "search/ReplacementText.h"
#include "search/TextEdits.h"

namespace Quillbox {

namespace {

using Sci = QsciScintillaBase;

ReplacementText ReplacementFor(const FindTask &task, const QString &replacement,
                               const ScintillaText &text) {
    const std::string bytes = EditorBytes(replacement).toStdString();
    return task.Request.IsExpression ? ReplacementText::WithGroups(bytes, text.LineEndBytes())
                                     : ReplacementText::AsItStands(bytes);
}

/// What takes the place of the selection; nothing when it is no match.
std::optional<std::string> ReplacementOfSelection(const ScintillaText &text, const FindTask &task,
                                                  const ReplacementText &replacement) {
    MadeSearch made = MakeSearch(task.Request, LongestSearch(text));
    const auto *search = std::get_if<std::unique_ptr<TextSearch>>(&made);
    const MovingRange selection{text.SelectionStart(), text.SelectionEnd()};
    const MovingRange scope = RangeOf(task, text);
    if (search == nullptr || selection.Start < scope.Start || selection.End > scope.End)
        return std::nullopt;
    const LineIndex line = text.LineOf(text.SelectionStart());
    const std::string_view bytes = text.LineBytes(line);
    const std::int64_t start = text.LineStart(line);
    std::optional<std::string> result;
    (*search)->VisitMatches(
        bytes, static_cast<std::size_t>(selection.Start - start), [&](const TextMatch &match) {
            const MovingRange found{start + static_cast<std::int64_t>(match.Range.Start),
                                    start + static_cast<std::int64_t>(match.Range.End)};
            if (found == selection)
                replacement.AppendTo(result.emplace(), bytes, match);
            return false;
        });
    return result;
}

/// Every replacement, made before the first is put in: what was replaced is not looked at again.
SearchEnd CollectEdits(const ScintillaText &text, const MovingRange &range, TextSearch &search,
                       const ReplacementText &replacement, TextEdits &edits) {
    SearchEnd end = SearchEnd::Complete;
    std::string bytes;
    const auto visitPiece = [&](const TextPiece &piece) {
        edits.BeginPiece(static_cast<std::size_t>(piece.Start), piece.Bytes);
        const auto replace = [&](const TextMatch &match) {
            if (piece.Start + static_cast<BytePosition>(match.Range.End) > range.End)
                return false;
            bytes.clear();
            replacement.AppendTo(bytes, piece.Bytes, match);
            edits.Replace(match.Range, bytes);
            return true;
        };
        const auto from = std::max<std::int64_t>(range.Start - piece.Start, 0);
        end = search.VisitMatches(piece.Bytes, static_cast<std::size_t>(from), replace);
        return end == SearchEnd::Complete;
    };
    VisitPieces(text, static_cast<BytePosition>(range.Start), static_cast<BytePosition>(range.End),
                PieceOrder::Forward, visitPiece);
    return end;
}

void PutIn(const ScintillaText &text, const TextEdits &edits) {
    BytePosition shift = 0;
    for (const TextEdit &edit : edits.Edits()) {
        const auto start = static_cast<BytePosition>(edit.Range.Start);
        const auto end = static_cast<BytePosition>(edit.Range.End);
        text.Replace(start + shift, end + shift, edit.Text);
        shift += static_cast<BytePosition>(edit.Text.size()) - (end - start);
    }
}

/// Neighbours that are put in together take their lines out and bring as many back. With new line
/// ends among them the component sees each by itself and moves marks and view along.
void PutInAsOne(QsciScintillaBase &editor, const TextEdits &edits, BulkLines lines) {
    const ScintillaText text(editor);
    const UndoStep step(text);
    const std::intptr_t top = text.Send(Sci::SCI_GETFIRSTVISIBLELINE);
    const auto before = static_cast<BytePosition>(edits.Edits().front().Range.Start);
    const auto end = static_cast<BytePosition>(edits.Edits().back().Range.End);
    {
        const BulkEdit edit(editor, lines, before, text.Length() - end);
        PutIn(text, edits);
    }
    if (lines == BulkLines::Kept)
        text.Send(Sci::SCI_SETFIRSTVISIBLELINE, top);
}

} // namespace

Replaced ReplaceMatch(QsciScintillaBase &editor, const FindTask &task, const QString &replacement,
                      EmptyMatch emptyMatch) {
    const ScintillaText text(editor);
    const BytePosition start = text.SelectionStart();
    const bool mayBeMatch = start != text.SelectionEnd() || emptyMatch == EmptyMatch::Taken;
    Replaced replaced;
    FindTask next = task;
    if (mayBeMatch) {
        const auto bytes =
            ReplacementOfSelection(text, task, ReplacementFor(task, replacement, text));
        replaced.Selection = bytes.has_value();
        if (bytes) {
            const auto length = static_cast<BytePosition>(bytes->size());
            if (next.Scope)
                next.Scope->End += length - (text.SelectionEnd() - start);
            text.Replace(start, text.SelectionEnd(), *bytes);
            text.Send(Sci::SCI_SETEMPTYSELECTION, start + length);
        }
    }
    replaced.Next = SelectMatch(editor, next, FindDirection::Forward);
    return replaced;
}

ReplacedAll ReplaceAllMatches(QsciScintillaBase &editor, const FindTask &task,
                              const QString &replacement) {
    const ScintillaText text(editor);
    MadeSearch made = MakeSearch(task.Request, LongestSearch(text));
    if (const auto *bad = std::get_if<BadExpression>(&made))
        return {0, bad->Reason};
    const ReplacementText replacementText = ReplacementFor(task, replacement, text);
    const auto lines = replacementText.HasLineEnd() ? BulkLines::Moved : BulkLines::Kept;
    TextEdits edits(lines == BulkLines::Kept ? TextEdits::Neighbours::Join
                                             : TextEdits::Neighbours::KeepApart);
    edits.Follow(static_cast<std::size_t>(text.Caret()));
    edits.Follow(static_cast<std::size_t>(text.Send(Sci::SCI_GETANCHOR)));
    TextSearch &search = *std::get<std::unique_ptr<TextSearch>>(made);
    if (CollectEdits(text, RangeOf(task, text), search, replacementText, edits) ==
        SearchEnd::TooCostly)
        return {0, TooCostlyProblem()};
    if (edits.Count() > 0) {
        PutInAsOne(editor, edits, lines);
        text.Send(Sci::SCI_SETSELECTION, static_cast<std::intptr_t>(edits.PlaceOf(0)),
                  static_cast<std::intptr_t>(edits.PlaceOf(1)));
    }
    return {edits.Count(), {}};
}

} // namespace Quillbox
