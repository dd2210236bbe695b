// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/ui/ScintillaText.h"

#include "base/AnsiText.h"
#include "base/Utf8.h"

#include <algorithm>

namespace Quillbox {

namespace {

using Sci = QsciScintillaBase;

int CharacterCount(std::string_view utf8) {
    return static_cast<int>(std::count_if(utf8.begin(), utf8.end(), StartsCharacter));
}

/// The length in bytes of the first `count` characters, of all when there are fewer.
BytePosition BytesOfCharacters(std::string_view utf8, int count) {
    std::size_t length = 0;
    for (; length < utf8.size(); ++length)
        if (StartsCharacter(utf8[length]) && count-- <= 0)
            break;
    return static_cast<BytePosition>(length);
}

} // namespace

QString EditorCharacters(const QString &text) {
    QString result;
    result.reserve(text.size());
    for (const char32_t character : text.toUcs4())
        result += HasAnsiByte(character) ? QChar(static_cast<char16_t>(character)) : QChar(u'?');
    return result;
}

QByteArray EditorBytes(const QString &text) { return EditorCharacters(text).toUtf8(); }

QString FromUtf8(std::string_view bytes) {
    return QString::fromUtf8(bytes.data(), static_cast<qsizetype>(bytes.size()));
}

ScintillaText::ScintillaText(const QsciScintillaBase &control)
    : Function_(reinterpret_cast<DirectFunction>(
          control.SendScintillaPtrResult(Sci::SCI_GETDIRECTFUNCTION)))
    , Target_(static_cast<QsciScintillaQt *>(
          control.SendScintillaPtrResult(Sci::SCI_GETDIRECTPOINTER))) {}

std::intptr_t ScintillaText::Send(unsigned message, std::intptr_t first,
                                  std::intptr_t second) const {
    return Function_(Target_, message, static_cast<std::uintptr_t>(first), second);
}

BytePosition ScintillaText::Length() const { return Send(Sci::SCI_GETLENGTH); }

int ScintillaText::LineCount() const { return static_cast<int>(Send(Sci::SCI_GETLINECOUNT)); }

LineIndex ScintillaText::NearestLine(LineIndex line) const {
    return {std::clamp(line.Value, 0, LineCount() - 1)};
}

LineIndex ScintillaText::LineOf(BytePosition position) const {
    return {static_cast<int>(Send(Sci::SCI_LINEFROMPOSITION, position))};
}

BytePosition ScintillaText::LineStart(LineIndex line) const {
    return Send(Sci::SCI_POSITIONFROMLINE, NearestLine(line).Value);
}

BytePosition ScintillaText::LineEnd(LineIndex line) const {
    return Send(Sci::SCI_GETLINEENDPOSITION, NearestLine(line).Value);
}

BytePosition ScintillaText::NextLineStart(LineIndex line) const {
    return line.Value + 1 < LineCount() ? LineStart({line.Value + 1}) : Length();
}

BytePosition ScintillaText::Caret() const { return Send(Sci::SCI_GETCURRENTPOS); }

void ScintillaText::MoveCaret(BytePosition position) const {
    Send(Sci::SCI_GOTOPOS, position);
    Send(Sci::SCI_CHOOSECARETX);
}

BytePosition ScintillaText::SelectionStart() const { return Send(Sci::SCI_GETSELECTIONSTART); }

BytePosition ScintillaText::SelectionEnd() const { return Send(Sci::SCI_GETSELECTIONEND); }

std::string_view ScintillaText::Bytes(BytePosition start, BytePosition end) const {
    if (end <= start)
        return {};
    const auto bytes =
        reinterpret_cast<const char *>(Send(Sci::SCI_GETRANGEPOINTER, start, end - start));
    return {bytes, static_cast<std::size_t>(end - start)};
}

std::string_view ScintillaText::LineBytes(LineIndex line) const {
    return Bytes(LineStart(line), LineEnd(line));
}

std::string_view ScintillaText::LineEndBytes() const {
    static constexpr std::string_view lineEnds[] = {"\r\n", "\r", "\n"};
    return lineEnds[Send(Sci::SCI_GETEOLMODE)];
}

QPoint ScintillaText::PointAt(BytePosition position) const {
    return {static_cast<int>(Send(Sci::SCI_POINTXFROMPOSITION, 0, position)),
            static_cast<int>(Send(Sci::SCI_POINTYFROMPOSITION, 0, position))};
}

BytePosition ScintillaText::PositionOf(TextPosition position) const {
    const LineIndex line = NearestLine(position.Line);
    return LineStart(line) + BytesOfCharacters(LineBytes(line), position.Column.Value);
}

TextPosition ScintillaText::PositionAt(BytePosition position) const {
    const LineIndex line = LineOf(position);
    return {line, {CharacterCount(Bytes(LineStart(line), position))}};
}

int ScintillaText::CharactersIn(BytePosition start, BytePosition end) const {
    return CharacterCount(Bytes(start, end));
}

void ScintillaText::Replace(BytePosition start, BytePosition end,
                            std::string_view replacement) const {
    const UndoStep step(*this);
    Send(Sci::SCI_SETTARGETRANGE, start, end);
    Send(Sci::SCI_REPLACETARGET, static_cast<std::intptr_t>(replacement.size()),
         reinterpret_cast<std::intptr_t>(replacement.data()));
}

UndoStep::UndoStep(const ScintillaText &text)
    : Text_(text) {
    Text_.Send(Sci::SCI_BEGINUNDOACTION);
}

UndoStep::~UndoStep() { Text_.Send(Sci::SCI_ENDUNDOACTION); }

} // namespace Quillbox
