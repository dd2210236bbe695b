// SPDX-License-Identifier: GPL-3.0-or-later
#include "search/ReplacementText.h"

#include "base/Characters.h"

namespace Quillbox {

ReplacementText ReplacementText::AsItStands(std::string_view utf8) {
    ReplacementText text;
    text.Parts_.push_back({std::string(utf8), NoGroup});
    return text;
}

ReplacementText ReplacementText::WithGroups(std::string_view utf8, std::string_view lineEnd) {
    ReplacementText result;
    std::string text;
    for (std::size_t place = 0; place < utf8.size(); ++place) {
        const char sign = utf8[place];
        const char next = place + 1 < utf8.size() ? utf8[place + 1] : '\0';
        const bool isEscape = sign == '\\';
        if ((isEscape || sign == '$') && IsDigit(next)) {
            result.Parts_.push_back({std::exchange(text, {}), next - '0'});
        } else if ((isEscape && next == '\\') || (sign == '$' && next == '$')) {
            text += sign;
        } else if (isEscape && next == 'n') {
            text += lineEnd;
            result.HasLineEnd_ = true;
        } else if (isEscape && next == 't') {
            text += '\t';
        } else {
            text += sign;
            continue;
        }
        ++place;
    }
    result.Parts_.push_back({text, NoGroup});
    return result;
}

void ReplacementText::AppendTo(std::string &bytes, std::string_view lines,
                               const TextMatch &match) const {
    for (const Part &part : Parts_) {
        bytes += part.Text;
        const auto group = static_cast<std::size_t>(part.Group);
        if (part.Group != NoGroup && group < match.Groups.size()) {
            const ByteRange range = match.Groups[group];
            bytes += lines.substr(range.Start, range.End - range.Start);
        }
    }
}

} // namespace Quillbox
