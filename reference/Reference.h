// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

#include <vector>

namespace Quillbox {

/// A word of the language with its line of quick help, cut in two.
struct ReferenceWord {
    QString Name;
    QString Signature;
    QString Description; ///< empty when the line holds a signature only
};

/// A few lines of code under a theme.
struct CodeSample {
    QString Caption;
    QStringList Lines;
};

/// What the words of a page have in common.
struct Theme {
    QString Key;           ///< names the page and is what examples call the theme
    QStringList OtherKeys; ///< further names that examples may use for it
    QString Group;         ///< the heading that it stands under
    QString Title;
    QString Introduction;
    QStringList Words;
    std::vector<CodeSample> Samples;
};

/// An example program of the help folder.
struct ExampleProgram {
    QString File; ///< its name below the folder of the examples
    QString Title;
    QStringList Themes; ///< keys
    QString Sentence;
};

struct Reference {
    std::vector<ReferenceWord> Words; ///< in the order of the word files
    std::vector<Theme> Themes;        ///< in the order of the pages
    std::vector<ExampleProgram> Examples;
};

/// Whether examples may call the theme so; letter case does not matter.
bool IsCalled(const Theme &theme, const QString &name);

} // namespace Quillbox
