// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/LineRequest.h"

#include "base/Characters.h"

#include <QString>

#include <algorithm>
#include <limits>

namespace Quillbox {
namespace {

constexpr int LargestNumber = std::numeric_limits<int>::max();

/// A number with more digits than any text has lines counts as the largest one.
std::optional<int> ReadNumber(QStringView text) {
    QStringView digits = text.trimmed();
    const bool negative = digits.startsWith(u'-');
    if (negative)
        digits = digits.sliced(1);
    if (digits.isEmpty() || !std::ranges::all_of(digits, IsDigit))
        return std::nullopt;
    if (negative)
        return 0;
    bool fits = false;
    const int number = digits.toInt(&fits);
    return fits ? number : LargestNumber;
}

} // namespace

std::optional<TextPosition> ReadLineRequest(QStringView text, int lineCount) {
    const qsizetype colon = text.indexOf(u':');
    const std::optional<int> line = ReadNumber(colon < 0 ? text : text.first(colon));
    const std::optional<int> column = colon < 0 ? 1 : ReadNumber(text.sliced(colon + 1));
    if (!line || !column)
        return std::nullopt;
    return TextPosition{{std::clamp(*line, 1, lineCount) - 1}, {std::max(*column, 1) - 1}};
}

} // namespace Quillbox
