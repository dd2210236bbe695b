// SPDX-License-Identifier: GPL-3.0-or-later
#include "language/ColouringRules.h"

#include "base/Characters.h"
#include "language/ColouringScanner.h"

#include <QStringList>

#include <algorithm>

namespace Quillbox {

namespace {

bool HasLineEnd(std::string_view text) {
    return text.find_first_of("\r\n") != std::string_view::npos;
}

void AddWords(WordSet &words, const QString &list, TextStyle style) {
    const QStringList items = list.split(u'\n', Qt::SkipEmptyParts);
    for (const QString &item : items)
        words.Add(item.toStdString(), static_cast<WordSet::Mark>(style));
}

} // namespace

ColouringRules::ColouringRules(const LanguageDefinition &language)
    : Words_(language.Case) {
    AddWords(Words_, language.Keywords, TextStyle::Keyword);
    AddWords(Words_, language.UserWords, TextStyle::UserWord);
    ClassifyBytes();
    AddOperators(language.Operators);
    AddMarker(language.SingleLineComment, MarkerKind::Comment);
    const std::string commentEnd = language.MultiLineCommentEnd.toStdString();
    if (!commentEnd.empty() && !HasLineEnd(commentEnd)) {
        MultiLineCommentEnd_ = commentEnd;
        AddMarker(language.MultiLineCommentStart, MarkerKind::MultiLineComment);
    }
    AddMarker(language.StringDelimiter, MarkerKind::String);
    std::stable_sort(Markers_.begin(), Markers_.end(), [](const Marker &one, const Marker &other) {
        return one.Text.size() > other.Text.size();
    });
}

void ColouringRules::ClassifyBytes() {
    for (std::size_t code = 0; code < Classes_.size(); ++code) {
        const char byte = static_cast<char>(code);
        if (IsWordByte(byte))
            Classes_[code] = IsDigit(byte) ? ByteClass::Digit : ByteClass::Word;
        else if (byte == '.' || byte == '$' || byte == '%')
            Classes_[code] = ByteClass::NumberPrefix;
    }
    ClassesWithoutMarkers_ = Classes_;
}

void ColouringRules::AddOperators(const QString &operators) {
    const QStringList items = operators.split(u'\n', Qt::SkipEmptyParts);
    for (const QString &item : items)
        if (item.size() == 1 && item[0].unicode() > u' ' && item[0].unicode() < 0x7F)
            SingleStyles_[item[0].unicode()] = TextStyle::Operator;
}

void ColouringRules::AddMarker(const QString &text, MarkerKind kind) {
    std::string bytes = text.toStdString();
    if (bytes.empty() || HasLineEnd(bytes))
        return;
    Classes_[static_cast<unsigned char>(bytes.front())] = ByteClass::Marker;
    Markers_.push_back({std::move(bytes), kind});
}

ColouringState ColouringRules::Colour(std::string_view text, ColouringState state,
                                      TextStyle *styles) const {
    return text.empty() ? state : ColouringScanner(*this, text, styles).Run(state);
}

} // namespace Quillbox
