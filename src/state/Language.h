// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLatin1String>

#include <string_view>

namespace Quillbox {

/// All that is particular to the language that people write in.
struct Language {
    QLatin1String Name; ///< editors select the colouring rules by it, and the status bar shows it

    /// A line that begins with it, in its first column and in any letter case, declares something.
    /// In lower case.
    std::string_view FunctionPrefix;
    std::string_view TypePrefix;

    QLatin1String SingleLineComment;
    QLatin1String MultiLineCommentStart;
    QLatin1String MultiLineCommentEnd;
    QLatin1String StringDelimiter;
    QLatin1String Operators; ///< each is one character

    /// In the program folder: the words, and the line of help of each.
    QLatin1String KeywordFile;
    QLatin1String QuickHelpFile;

    /// What the choosers offer for a source, and for one that is added to a project.
    QLatin1String SourceFilter;
    QLatin1String FurtherSourceFilter;
    QLatin1String ExampleSuffix; ///< of the sources that the help links to
    QLatin1String MainSource;    ///< of a project that names none
};

inline constexpr Language SourceLanguage = {
    .Name = QLatin1String("Blitz3D"),
    .FunctionPrefix = "process",
    .TypePrefix = "type",
    .SingleLineComment = QLatin1String("//"),
    .MultiLineCommentStart = QLatin1String("/*"),
    .MultiLineCommentEnd = QLatin1String("*/"),
    .StringDelimiter = QLatin1String("\""),
    .Operators = QLatin1String("+-*/^%&!=<>|.,;:[]()"),
    .KeywordFile = QLatin1String("Keywords.txt"),
    .QuickHelpFile = QLatin1String("QuickHelp.txt"),
    .SourceFilter = QLatin1String("Programas de Fenix (*.prg)|*.prg"),
    .FurtherSourceFilter = QLatin1String("Programas de BlitzBasic3D (*.bb)|*.bb"),
    .ExampleSuffix = QLatin1String(".bb"),
    .MainSource = QLatin1String("Main.bb"),
};

} // namespace Quillbox
