// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/qt/ScintillaSearch.h"

#include "editor/WordSet.h"
#include "platform/qt/ScintillaText.h"

#include <array>
#include <string>
#include <vector>

namespace Quillbox {

namespace {

using Sci = QsciScintillaBase;

struct Match {
    BytePosition Start = -1;
    BytePosition End = -1;
};

/// The character that starts at `position` of UTF-8 without characters beyond 16 bits, and its
/// length in bytes.
struct Character {
    char16_t Code;
    std::size_t Length;
};

Character CharacterAt(std::string_view utf8, std::size_t position) {
    const auto byte = [&](std::size_t offset) {
        const std::size_t place = position + offset;
        return place < utf8.size() ? static_cast<unsigned char>(utf8[place]) : 0U;
    };
    if (byte(0) < 0xC0)
        return {static_cast<char16_t>(byte(0)), 1};
    if (byte(0) < 0xE0)
        return {static_cast<char16_t>((byte(0) & 0x1F) << 6 | (byte(1) & 0x3F)), 2};
    return {
        static_cast<char16_t>((byte(0) & 0x0F) << 12 | (byte(1) & 0x3F) << 6 | (byte(2) & 0x3F)),
        3};
}

/// Looks for one request in one text. The component's own search takes only ASCII letters of both
/// cases for the same.
class Search {
  public:
    Search(QsciScintillaBase &editor, const FindRequest &request)
        : Text_(editor)
        , MatchCase_(request.MatchCase)
        , WholeWord_(request.WholeWord) {
        for (const QChar character : request.Term)
            Term_ += Folded(character.unicode());
        if (Term_.empty())
            return;
        const QChar first(Term_.front());
        for (const QChar form : {first, first.toUpper(), first.toLower()})
            MayStart_[static_cast<unsigned char>(QString(form).toUtf8().front())] = true;
    }

    const ScintillaText &Text() const { return Text_; }

    /// The first match that starts at `from` or behind; Start -1 for none.
    Match FindForward(BytePosition from) const {
        const std::string_view text = WholeText();
        for (auto start = static_cast<std::size_t>(from); start < text.size(); ++start)
            if (const Match match = MatchAt(text, start); match.Start >= 0)
                return match;
        return {};
    }

    /// The last match that ends at `to` or before.
    Match FindBackward(BytePosition to) const {
        const std::string_view text = WholeText();
        for (auto start = static_cast<std::size_t>(to); start-- > 0;)
            if (const Match match = MatchAt(text, start); match.Start >= 0 && match.End <= to)
                return match;
        return {};
    }

    Match FindFromSelection(FindDirection direction) const {
        if (direction == FindDirection::Forward) {
            const Match match = FindForward(Text_.SelectionEnd());
            return match.Start >= 0 ? match : FindForward(0);
        }
        const Match match = FindBackward(Text_.SelectionStart());
        return match.Start >= 0 ? match : FindBackward(Text_.Length());
    }

    bool IsMatch(BytePosition start, BytePosition end) const {
        return start < end && MatchAt(WholeText(), static_cast<std::size_t>(start)).End == end;
    }

  private:
    std::string_view WholeText() const { return Text_.Bytes(0, Text_.Length()); }

    char16_t Folded(char16_t code) const {
        if (MatchCase_)
            return code;
        if (code >= 0x80)
            return QChar(code).toCaseFolded().unicode();
        return code >= u'A' && code <= u'Z' ? static_cast<char16_t>(code - u'A' + u'a') : code;
    }

    Match MatchAt(std::string_view text, std::size_t start) const {
        if (!MayStart_[static_cast<unsigned char>(text[start])])
            return {};
        std::size_t end = start;
        for (const char16_t wanted : Term_) {
            if (end >= text.size())
                return {};
            const Character character = CharacterAt(text, end);
            if (Folded(character.Code) != wanted)
                return {};
            end += character.Length;
        }
        const bool inWord = (start > 0 && IsWordByte(text[start - 1])) ||
                            (end < text.size() && IsWordByte(text[end]));
        if (WholeWord_ && inWord)
            return {};
        return {static_cast<BytePosition>(start), static_cast<BytePosition>(end)};
    }

    ScintillaText Text_;
    bool MatchCase_;
    bool WholeWord_;
    std::u16string Term_;              ///< folded
    std::array<bool, 256> MayStart_{}; ///< by the first byte of a match
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
    const BytePosition start = text.SelectionStart();
    const bool isMatch = search.IsMatch(start, text.SelectionEnd());
    if (isMatch) {
        const QByteArray bytes = EditorBytes(replacement);
        text.Replace(start, text.SelectionEnd(), bytes.toStdString());
        text.Send(Sci::SCI_SETEMPTYSELECTION, start + bytes.size());
    }
    return {isMatch, Select(text, search.FindFromSelection(FindDirection::Forward))};
}

int ReplaceAllMatches(QsciScintillaBase &editor, const FindRequest &request,
                      const QString &replacement) {
    const Search search(editor, request);
    const ScintillaText &text = search.Text();
    const std::string bytes = EditorBytes(replacement).toStdString();
    const UndoStep step(text);
    // All matches before the first replacement: looking at the whole text has the component close
    // the gap at the place of the last edit, which costs a pass over the text.
    std::vector<Match> matches;
    for (Match match = search.FindForward(0); match.Start >= 0;
         match = search.FindForward(match.End))
        matches.push_back(match);
    BytePosition shift = 0;
    for (const Match &match : matches) {
        text.Replace(match.Start + shift, match.End + shift, bytes);
        shift += static_cast<BytePosition>(bytes.size()) - (match.End - match.Start);
    }
    return static_cast<int>(matches.size());
}

} // namespace Quillbox
