// SPDX-License-Identifier: GPL-3.0-or-later
#include "ColouringFixture.h"

#include <gtest/gtest.h>

#include <random>

namespace Quillbox {

namespace {

/// Texts that are dense in markers, so that most of them meet each other in odd ways.
constexpr std::string_view Pieces[] = {
    "//",
    "/*",
    "*/",
    "\"",
    "'",
    "''",
    "\n",
    "\r",
    "\r\n",
    "if",
    "año",
    ".5",
    "$F",
    "%1",
    " ",
    "\t",
    "(",
    ")",
    "]",
    "+",
    "1e",
    "1",
    std::string_view("\0", 1),
    "x",
    "/",
    "*",
    "¡",
    "rem",
};

class Source {
  public:
    explicit Source(unsigned seed)
        : Random_(seed) {}

    std::size_t Below(std::size_t limit) { return Random_() % limit; }

    std::string Text(std::size_t pieces) {
        std::string text;
        for (std::size_t count = 0; count < pieces; ++count)
            text += Pieces[Below(std::size(Pieces))];
        return text;
    }

    QString Marker() {
        static const QString markers[] = {"",   "//",  "/*", "*/", "\"", "'",
                                          "''", "rem", "/",  "¡",  " "};
        return markers[Below(std::size(markers))];
    }

    LanguageDefinition Language() {
        LanguageDefinition language;
        language.Case = Below(2) == 0 ? CaseSensitivity::Off : CaseSensitivity::On;
        language.SingleLineComment = Marker();
        language.MultiLineCommentStart = Marker();
        language.MultiLineCommentEnd = Marker();
        language.StringDelimiter = Marker();
        language.Operators = Below(2) == 0 ? "+\n)\n.\n%\n/\n*\n" : "";
        language.Keywords = Below(2) == 0 ? "\nif\naño" : "";
        language.UserWords = Below(2) == 0 ? "\nx\nif" : "";
        return language;
    }

  private:
    std::mt19937 Random_;
};

/// The end of the line that starts at `start`, behind its line end.
std::size_t NextLine(std::string_view text, std::size_t start) {
    const std::size_t end = text.find_first_of("\r\n", start);
    if (end == std::string_view::npos)
        return text.size();
    return text.substr(end).starts_with("\r\n") ? end + 2 : end + 1;
}

/// Colours some lines at a time, each time from what the byte before them shows.
std::vector<TextStyle> ColouredInPieces(const ColouringRules &rules, std::string_view text,
                                        Source &source) {
    std::vector<TextStyle> styles(text.size());
    for (std::size_t start = 0; start < text.size();) {
        std::size_t end = start;
        for (std::size_t lines = 1 + source.Below(3); lines > 0 && end < text.size(); --lines)
            end = NextLine(text, end);
        const auto state = start == 0 ? ColouringState::Code : StateAfter(styles[start - 1]);
        rules.Colour(text.substr(start, end - start), state, styles.data() + start);
        start = end;
    }
    return styles;
}

} // namespace

TEST(Colouring, InPiecesGivesWhatColouringInOneGoGives) {
    for (unsigned seed = 0; seed < 4000; ++seed) {
        Source source(seed);
        const ColouringRules rules(source.Language());
        const std::string text = source.Text(60);
        std::vector<TextStyle> whole(text.size());
        rules.Colour(text, ColouringState::Code, whole.data());
        ASSERT_EQ(Letters(ColouredInPieces(rules, text, source)), Letters(whole))
            << "seed " << seed << "\n"
            << text;
    }
}

TEST(Colouring, WritesEveryStyleAndNoMore) {
    for (unsigned seed = 0; seed < 2000; ++seed) {
        Source source(seed);
        const ColouringRules rules(source.Language());
        const std::string text = source.Text(20);
        constexpr auto untouched = static_cast<TextStyle>(99);
        std::vector<TextStyle> styles(text.size() + 1, untouched);
        rules.Colour(text, ColouringState::Code, styles.data());
        ASSERT_EQ(styles.back(), untouched);
        for (std::size_t index = 0; index < text.size(); ++index)
            ASSERT_LT(static_cast<int>(styles[index]), TextStyleCount) << "seed " << seed;
    }
}

} // namespace Quillbox
