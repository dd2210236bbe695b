// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "reference/Reference.h"

namespace Quillbox {

struct ReferencePage {
    QString File; ///< its name in the folder of the reference
    QString Html; ///< to be written as UTF-8
};

/// The page of a theme, as links name it.
QString FileOf(const Theme &theme);

/// The themes with what each is about.
ReferencePage ThemeIndexPage(const Reference &reference);
/// One theme: its words with an anchor each, its samples, its examples.
ReferencePage ThemePage(const Reference &reference, std::size_t theme);
/// All words, each linked to its place on the page of its theme.
ReferencePage AlphabetPage(const Reference &reference);
/// The example programs by theme; their links open them in the editor.
ReferencePage ExamplesPage(const Reference &reference);

/// All of them, the theme index last: where it stands, the others stand, too. The reference must
/// have no gaps.
std::vector<ReferencePage> MakePages(const Reference &reference);

} // namespace Quillbox
