// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace Quillbox {

enum class CaseSensitivity { Off, On };

/// The colouring rules that every editor uses. The lists are texts of items with line feeds between
/// them; empty items count for nothing. An empty marker or delimiter switches its rule off.
struct LanguageDefinition {
    CaseSensitivity Case = CaseSensitivity::Off;
    QString SingleLineComment;
    QString MultiLineCommentStart;
    QString MultiLineCommentEnd;
    QString StringDelimiter;
    QString Operators; ///< one-character operators, each followed by a line feed
    QString Keywords;  ///< each preceded by a line feed
    QString UserWords; ///< the current document's function names, each preceded by a line feed

    bool operator==(const LanguageDefinition &) const = default;
};

} // namespace Quillbox
