// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/ProfileText.h"

#include "base/AnsiText.h"
#include "base/Characters.h"

#include <QByteArrayView>

#include <algorithm>
#include <array>
#include <vector>

namespace Quillbox {

namespace {

/// One line by its offsets in the profile text.
struct Line {
    qsizetype Start;
    qsizetype TextEnd; ///< where the line end begins
    qsizetype End;     ///< behind the line end
};

/// A section's lines, its header not included.
struct LineRange {
    std::size_t First;
    std::size_t End;
};

struct KeyAndValue {
    QByteArrayView Key;
    QByteArrayView Value;
};

/// CR LF, LF or a lone CR ends a line.
std::vector<Line> SplitLines(QByteArrayView content) {
    std::vector<Line> lines;
    for (qsizetype start = 0; start < content.size(); start = lines.back().End) {
        const auto found = std::find_if(content.begin() + start, content.end(), IsLineEnd);
        const qsizetype textEnd = found - content.begin();
        qsizetype end = std::min(textEnd + 1, content.size());
        if (end < content.size() && content[textEnd] == '\r' && content[end] == '\n')
            ++end;
        lines.push_back({start, textEnd, end});
    }
    return lines;
}

bool IsBlank(char byte) { return byte == ' ' || byte == '\t'; }

QByteArrayView Trimmed(QByteArrayView text) {
    while (!text.isEmpty() && IsBlank(text.front()))
        text = text.sliced(1);
    while (!text.isEmpty() && IsBlank(text.back()))
        text.chop(1);
    return text;
}

QByteArrayView TrimmedText(QByteArrayView content, const Line &line) {
    return Trimmed(content.sliced(line.Start, line.TextEnd - line.Start));
}

std::array<char16_t, 256> MakeUpperCase() {
    std::array<char16_t, 256> upper = AnsiCodePage();
    for (char16_t &character : upper)
        character = QChar(character).toUpper().unicode();
    return upper;
}

/// Letters with accents have two cases as well.
bool IsSameName(QByteArrayView one, QByteArrayView other) {
    static const std::array<char16_t, 256> upperCase = MakeUpperCase();
    return std::equal(one.begin(), one.end(), other.begin(), other.end(), [](char a, char b) {
        return upperCase[static_cast<unsigned char>(a)] == upperCase[static_cast<unsigned char>(b)];
    });
}

std::optional<QByteArrayView> SectionNameOf(QByteArrayView text) {
    const qsizetype end = text.indexOf(']');
    if (!text.startsWith('[') || end < 0)
        return std::nullopt;
    return Trimmed(text.sliced(1, end - 1));
}

std::optional<KeyAndValue> KeyAndValueOf(QByteArrayView text) {
    const qsizetype equals = text.indexOf('=');
    if (equals < 0 || text.startsWith(';'))
        return std::nullopt;
    return KeyAndValue{Trimmed(text.first(equals)), Trimmed(text.sliced(equals + 1))};
}

QByteArrayView WithoutQuotes(QByteArrayView value) {
    const bool quoted = value.size() >= 2 && value.front() == value.back() &&
                        (value.front() == '"' || value.front() == '\'');
    return quoted ? value.sliced(1, value.size() - 2) : value;
}

std::optional<LineRange> FindSection(QByteArrayView content, const std::vector<Line> &lines,
                                     QByteArrayView name) {
    const auto isHeader = [content](const Line &line) {
        return SectionNameOf(TrimmedText(content, line)).has_value();
    };
    const auto isWanted = [content, name](const Line &line) {
        const auto found = SectionNameOf(TrimmedText(content, line));
        return found && IsSameName(*found, Trimmed(name));
    };
    const auto header = std::find_if(lines.begin(), lines.end(), isWanted);
    if (header == lines.end())
        return std::nullopt;
    const auto end = std::find_if(header + 1, lines.end(), isHeader);
    return LineRange{static_cast<std::size_t>(header - lines.begin()) + 1,
                     static_cast<std::size_t>(end - lines.begin())};
}

struct FoundKey {
    Line Place;
    KeyAndValue Text;
};

std::optional<FoundKey> FindKey(QByteArrayView content, const std::vector<Line> &lines,
                                const LineRange &section, QByteArrayView key) {
    for (std::size_t i = section.First; i < section.End; ++i) {
        const auto text = KeyAndValueOf(TrimmedText(content, lines[i]));
        if (text && IsSameName(text->Key, Trimmed(key)))
            return FoundKey{lines[i], *text};
    }
    return std::nullopt;
}

/// Where a new key belongs: behind the header or the last line that is not blank.
qsizetype EndOfSection(QByteArrayView content, const std::vector<Line> &lines,
                       const LineRange &section) {
    std::size_t end = section.End;
    while (end > section.First && TrimmedText(content, lines[end - 1]).isEmpty())
        --end;
    return lines[end - 1].End;
}

/// Profile files are a Windows form: only one that has LF alone gets more of it.
QByteArray LineEndOf(const QByteArray &content) {
    return content.contains('\n') && !content.contains('\r') ? "\n" : "\r\n";
}

/// Inserts whole lines, after a line end where the text before has none.
QByteArray WithLinesAt(QByteArray content, qsizetype place, const QByteArray &lines,
                       const QByteArray &lineEnd) {
    const bool needsLineEnd = place > 0 && !IsLineEnd(content[place - 1]);
    return content.insert(place, needsLineEnd ? lineEnd + lines : lines);
}

} // namespace

std::optional<QByteArray> FindProfileValue(const QByteArray &content, const QByteArray &section,
                                           const QByteArray &key) {
    const std::vector<Line> lines = SplitLines(content);
    const auto range = FindSection(content, lines, section);
    const auto found = range ? FindKey(content, lines, *range, key) : std::nullopt;
    if (!found)
        return std::nullopt;
    return WithoutQuotes(found->Text.Value).toByteArray();
}

QByteArray WithProfileValue(const QByteArray &content, const QByteArray &section,
                            const QByteArray &key, const QByteArray &value) {
    const std::vector<Line> lines = SplitLines(content);
    const auto range = FindSection(content, lines, section);
    const QByteArray lineEnd = LineEndOf(content);
    const QByteArray newLine = WithoutBlanksAround(key) + '=' + value + lineEnd;
    if (!range) {
        const QByteArray header = '[' + WithoutBlanksAround(section) + ']' + lineEnd;
        return WithLinesAt(content, content.size(), header + newLine, lineEnd);
    }
    const auto found = FindKey(content, lines, *range, key);
    if (!found)
        return WithLinesAt(content, EndOfSection(content, lines, *range), newLine, lineEnd);
    const QByteArray text = found->Text.Key.toByteArray() + '=' + value;
    const Line &place = found->Place;
    return QByteArray(content).replace(place.Start, place.TextEnd - place.Start, text);
}

QByteArray WithoutBlanksAround(const QByteArray &bytes) { return Trimmed(bytes).toByteArray(); }

} // namespace Quillbox
