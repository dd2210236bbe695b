// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "reference/Reference.h"

#include <optional>

namespace Quillbox {

/// The two word files, line by line. What does not fit together is added to `problems`.
std::vector<ReferenceWord> PairWords(const QString &keywords, const QString &quickHelp,
                                     QStringList &problems);

/// The table of themes. Each line is a comment ("#"), empty, a line of code ("| code", of the last
/// sample) or "name: value". "tema" begins a theme and "ejemplo" a sample of it; "palabras" may
/// stand several times. What is not understood is added to `problems`, with its line.
std::vector<Theme> ReadThemes(const QString &table, QStringList &problems);

/// An example's title, themes and sentence are its first three lines: "; title", "; Tema: key, key"
/// and "; sentence". Nothing, and a line in `problems`, when they are something else.
std::optional<ExampleProgram> ReadExample(const QString &file, const QString &source,
                                          QStringList &problems);

/// What keeps the reference from being complete: words without a theme or with two, words of a
/// theme and themes of an example that do not exist.
QStringList FindGaps(const Reference &reference);

} // namespace Quillbox
