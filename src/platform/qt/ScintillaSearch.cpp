// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/qt/ScintillaSearch.h"

#include "platform/qt/ScintillaText.h"

namespace Quillbox {

namespace {

using Sci = QsciScintillaBase;

struct Match {
    BytePosition Start = -1;
    BytePosition End = -1;
};

/// Looks for one request in one text; the term is converted once.
class Search {
  public:
    Search(QsciScintillaBase &editor, const FindRequest &request)
        : Text_(editor)
        , Term_(request.Term.toUtf8()) {
        Text_.Send(Sci::SCI_SETSEARCHFLAGS, (request.MatchCase ? Sci::SCFIND_MATCHCASE : 0) |
                                                (request.WholeWord ? Sci::SCFIND_WHOLEWORD : 0));
    }

    const ScintillaText &Text() const { return Text_; }

    /// The first match from `from` on towards `to`, which may lie before it; Start -1 for none.
    Match Find(BytePosition from, BytePosition to) const {
        if (Term_.isEmpty())
            return {};
        Text_.Send(Sci::SCI_SETTARGETRANGE, from, to);
        const auto start = Text_.Send(Sci::SCI_SEARCHINTARGET, Term_.size(),
                                      reinterpret_cast<std::intptr_t>(Term_.constData()));
        return start < 0 ? Match{} : Match{start, Text_.Send(Sci::SCI_GETTARGETEND)};
    }

    Match FindFromSelection(FindDirection direction) const {
        const BytePosition length = Text_.Length();
        const bool forward = direction == FindDirection::Forward;
        const BytePosition from = forward ? Text_.SelectionEnd() : Text_.SelectionStart();
        const Match match = Find(from, forward ? length : 0);
        return match.Start >= 0 ? match : Find(forward ? 0 : length, forward ? length : 0);
    }

  private:
    ScintillaText Text_;
    QByteArray Term_;
};

bool Select(const ScintillaText &text, Match match) {
    if (match.Start < 0)
        return false;
    text.Send(Sci::SCI_SETSEL, match.Start, match.End);
    return true;
}

} // namespace

bool SelectMatch(QsciScintillaBase &editor, const FindRequest &request, FindDirection direction) {
    const Search search(editor, request);
    return Select(search.Text(), search.FindFromSelection(direction));
}

Replaced ReplaceMatch(QsciScintillaBase &editor, const FindRequest &request,
                      const QString &replacement) {
    const Search search(editor, request);
    const ScintillaText &text = search.Text();
    const Match selected = search.Find(text.SelectionStart(), text.SelectionEnd());
    const bool isMatch = selected.Start == text.SelectionStart() &&
                         selected.End == text.SelectionEnd() && selected.Start >= 0;
    if (isMatch) {
        const QByteArray bytes = EditorBytes(replacement);
        text.Replace(selected.Start, selected.End, bytes.toStdString());
        text.Send(Sci::SCI_SETEMPTYSELECTION, selected.Start + bytes.size());
    }
    return {isMatch, Select(text, search.FindFromSelection(FindDirection::Forward))};
}

int ReplaceAllMatches(QsciScintillaBase &editor, const FindRequest &request,
                      const QString &replacement) {
    const Search search(editor, request);
    const ScintillaText &text = search.Text();
    const std::string bytes = EditorBytes(replacement).toStdString();
    const UndoStep step(text);
    int count = 0;
    BytePosition from = 0;
    for (Match match = search.Find(from, text.Length()); match.Start >= 0;
         match = search.Find(from, text.Length())) {
        text.Replace(match.Start, match.End, bytes);
        from = match.Start + static_cast<BytePosition>(bytes.size());
        ++count;
    }
    return count;
}

} // namespace Quillbox
