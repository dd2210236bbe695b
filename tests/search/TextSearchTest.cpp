// SPDX-License-Identifier: GPL-3.0-or-later
#include "search/TextSearch.h"

#include "base/AnsiText.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <random>
#include <ranges>

namespace Quillbox {

void PrintTo(const ByteRange &range, std::ostream *stream) {
    *stream << range.Start << "-" << range.End;
}

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

std::unique_ptr<TextSearch> Made(const FindRequest &request) {
    MadeSearch made = MakeSearch(request, std::chrono::seconds(30));
    if (const auto *bad = std::get_if<BadExpression>(&made)) {
        ADD_FAILURE() << bad->Reason.toStdString();
        return nullptr;
    }
    return std::move(std::get<std::unique_ptr<TextSearch>>(made));
}

std::vector<ByteRange> Matches(const FindRequest &request, std::string_view lines,
                               std::size_t from = 0) {
    std::vector<ByteRange> ranges;
    const SearchEnd end = Made(request)->VisitMatches(lines, from, [&](const TextMatch &match) {
        ranges.push_back(match.Range);
        return true;
    });
    EXPECT_EQ(end, SearchEnd::Complete);
    return ranges;
}

/// Every match from the last one to the first.
std::vector<ByteRange> MatchesBackward(const FindRequest &request, std::string_view lines) {
    std::vector<ByteRange> ranges;
    const auto search = Made(request);
    const auto everyOne = [](ByteRange) { return true; };
    for (std::size_t to = lines.size();;) {
        const TextSearch::Last last = search->FindLast(lines, to, everyOne);
        if (!last.Match)
            return ranges;
        ranges.push_back(*last.Match);
        to = last.Match->Start;
    }
}

FindRequest Plain(const QString &term) { return {.Term = term}; }
FindRequest Exact(const QString &term) { return {.Term = term, .MatchCase = true}; }
FindRequest Word(const QString &term) { return {.Term = term, .WholeWord = true}; }
FindRequest Expression(const QString &term) { return {.Term = term, .IsExpression = true}; }

} // namespace

TEST(PlainSearch, FindsEachMatchOnce) {
    EXPECT_THAT(Matches(Exact("aa"), "aaaaa"), ElementsAre(ByteRange{0, 2}, ByteRange{2, 4}));
    EXPECT_THAT(Matches(Exact("aa"), "aaaaa", 1), ElementsAre(ByteRange{1, 3}, ByteRange{3, 5}));
}

TEST(PlainSearch, TakesCasesForTheSameUnlessAsked) {
    EXPECT_THAT(Matches(Plain("año"), "AÑO año"), ElementsAre(ByteRange{0, 4}, ByteRange{5, 9}));
    EXPECT_THAT(Matches(Exact("año"), "AÑO año"), ElementsAre(ByteRange{5, 9}));
}

TEST(PlainSearch, TellsLettersWithAccentsFromThoseWithout) {
    EXPECT_THAT(Matches(Plain("o"), "ó"), IsEmpty());
    EXPECT_THAT(Matches(Plain("ÿ"), "Ÿ ø ÿ"), ElementsAre(ByteRange{0, 2}, ByteRange{6, 8}));
}

TEST(PlainSearch, FindsASingleLetter) {
    EXPECT_THAT(Matches(Exact("x"), "axbx"), ElementsAre(ByteRange{1, 2}, ByteRange{3, 4}));
    EXPECT_THAT(Matches(Plain("x"), "aXbx"), ElementsAre(ByteRange{1, 2}, ByteRange{3, 4}));
}

TEST(PlainSearch, FindsNoTextThatTheCodePageLacks) {
    EXPECT_THAT(Matches(Plain("Ж"), "? x"), IsEmpty());
    EXPECT_THAT(Matches(Plain("😀"), "? x"), IsEmpty());
    EXPECT_THAT(Matches(Plain(QChar(0xD83D)), "? x"), IsEmpty());
}

TEST(PlainSearch, FindsNothingInATextShorterThanTheTerm) {
    EXPECT_THAT(Matches(Plain("enemigo"), "enemi"), IsEmpty());
    EXPECT_THAT(MatchesBackward(Plain("enemigo"), "enemi"), IsEmpty());
    EXPECT_THAT(Matches(Plain("a"), "a", 2), IsEmpty());
}

TEST(PlainSearch, FindsWholeWordsWhenAsked) {
    EXPECT_THAT(Matches(Word("vida"), "vidas vida_ vida"), ElementsAre(ByteRange{12, 16}));
    EXPECT_THAT(Matches(Word("ni"), "niño ni"), ElementsAre(ByteRange{6, 8}));
}

TEST(PlainSearch, TakesASignBetweenWordsForAWholeOne) {
    EXPECT_THAT(Matches(Word("="), "a=b"), ElementsAre(ByteRange{1, 2}));
}

TEST(PlainSearch, FindsTheSameMatchesFromTheEnd) {
    EXPECT_THAT(MatchesBackward(Plain("uno"), "uno Uno\r\nuno"),
                ElementsAre(ByteRange{9, 12}, ByteRange{4, 7}, ByteRange{0, 3}));
}

TEST(PlainSearch, EndsWhenTheVisitorHasEnough) {
    int visits = 0;
    Made(Plain("a"))->VisitMatches("aaa", 0, [&](const TextMatch &) { return ++visits < 2; });
    EXPECT_EQ(visits, 2);
}

TEST(ExpressionSearch, FindsWithinEachLine) {
    EXPECT_THAT(Matches(Expression("a.*b"), "a\nb\r\naxb\rab"),
                ElementsAre(ByteRange{5, 8}, ByteRange{9, 11}));
    EXPECT_THAT(Matches(Expression("\\s+"), "a \n b"),
                ElementsAre(ByteRange{1, 2}, ByteRange{3, 4}));
}

TEST(ExpressionSearch, TakesStartsAndEndsOfLinesInEveryForm) {
    EXPECT_THAT(Matches(Expression("^b|c$"), "b c\r\nb c\nb c\rb c"),
                ElementsAre(ByteRange{0, 1}, ByteRange{2, 3}, ByteRange{5, 6}, ByteRange{7, 8},
                            ByteRange{9, 10}, ByteRange{11, 12}, ByteRange{13, 14},
                            ByteRange{15, 16}));
}

TEST(ExpressionSearch, FindsEmptyMatchesAndGoesOn) {
    EXPECT_THAT(Matches(Expression("^"), "a\r\n\r\nb\n"),
                ElementsAre(ByteRange{0, 0}, ByteRange{3, 3}, ByteRange{5, 5}, ByteRange{7, 7}));
    EXPECT_THAT(Matches(Expression("x*"), "axx"),
                ElementsAre(ByteRange{0, 0}, ByteRange{1, 3}, ByteRange{3, 3}));
}

TEST(ExpressionSearch, CountsBytesAndSplitsNoCharacter) {
    EXPECT_THAT(Matches(Expression("."), "ñ€a"),
                ElementsAre(ByteRange{0, 2}, ByteRange{2, 5}, ByteRange{5, 6}));
    EXPECT_THAT(Matches(Expression("a*"), "ñ€"),
                ElementsAre(ByteRange{0, 0}, ByteRange{2, 2}, ByteRange{5, 5}));
    EXPECT_THAT(Matches(Expression("€|a"), "ñ€a", 2),
                ElementsAre(ByteRange{2, 5}, ByteRange{5, 6}));
}

TEST(ExpressionSearch, KnowsSpanishLetters) {
    EXPECT_THAT(Matches(Expression("\\w+"), "el AÑO"),
                ElementsAre(ByteRange{0, 2}, ByteRange{3, 7}));
    EXPECT_THAT(Matches(Expression("[á-ú]"), "Ñ"), ElementsAre(ByteRange{0, 2}));
}

TEST(ExpressionSearch, SeesWhatStandsBeforeItsStart) {
    EXPECT_THAT(Matches(Expression("(?<=a)b"), "ab", 1), ElementsAre(ByteRange{1, 2}));
    EXPECT_THAT(Matches(Expression("^b"), "ab", 1), IsEmpty());
}

TEST(ExpressionSearch, StartsBehindALineEnd) {
    EXPECT_THAT(Matches(Expression("^.?"), "a\r\nb", 2), ElementsAre(ByteRange{3, 4}));
    EXPECT_THAT(Matches(Expression("^.?"), "a\nb", 1), ElementsAre(ByteRange{2, 3}));
}

TEST(ExpressionSearch, FindsWholeWordsWhenAsked) {
    FindRequest request = Expression("vida|vidas");
    request.WholeWord = true;
    EXPECT_THAT(Matches(request, "vidas vida_ 2vida vida"),
                ElementsAre(ByteRange{0, 5}, ByteRange{18, 22}));
}

TEST(ExpressionSearch, FindsWholeWordsWithACommentAtTheEnd) {
    for (const char *term : {"(?x) vida # lo que queda", "(?#nada)vida"}) {
        FindRequest request = Expression(term);
        request.WholeWord = true;
        EXPECT_THAT(Matches(request, "vidas vida"), ElementsAre(ByteRange{6, 10})) << term;
    }
}

TEST(ExpressionSearch, GivesTheTextOfGroups) {
    const std::string_view lines = "año=1";
    std::vector<std::string> groups;
    Made(Expression("(\\w+)=(\\d)(x)?"))->VisitMatches(lines, 0, [&](const TextMatch &match) {
        for (const ByteRange range : match.Groups.first(4))
            groups.emplace_back(lines.substr(range.Start, range.End - range.Start));
        return true;
    });
    EXPECT_THAT(groups, ElementsAre("año=1", "año", "1", ""));
}

TEST(ExpressionSearch, FindsTheSameMatchesFromTheEnd) {
    EXPECT_THAT(MatchesBackward(Expression("\\w+"), "uno dos\r\n\r\ntres"),
                ElementsAre(ByteRange{11, 15}, ByteRange{4, 7}, ByteRange{0, 3}));
}

TEST(ExpressionSearch, StartsAMatchWhereTheExpressionSays) {
    EXPECT_THAT(Matches(Expression("a\\Kb"), "abab"),
                ElementsAre(ByteRange{1, 2}, ByteRange{3, 4}));
}

TEST(ExpressionSearch, GivesUpWhatTakesForever) {
    const std::string line(60, 'a');
    for (const char *term : {"(a+)+$", "(a|aa)+$", "^(\\w+\\s?)*$"}) {
        const SearchEnd end =
            Made(Expression(term))->VisitMatches(line + "!", 0, [](auto &) { return true; });
        EXPECT_EQ(end, SearchEnd::TooCostly) << term;
        const auto last =
            Made(Expression(term))->FindLast(line + "!", line.size(), [](auto) { return true; });
        EXPECT_EQ(last.End, SearchEnd::TooCostly) << term;
        EXPECT_FALSE(last.Match) << term;
    }
}

TEST(ExpressionSearch, GivesUpWhenItsTimeIsOver) {
    MadeSearch made = MakeSearch(Expression("a"), std::chrono::milliseconds(0));
    const auto &search = std::get<std::unique_ptr<TextSearch>>(made);
    EXPECT_EQ(search->VisitMatches("b\nb", 0, [](auto &) { return true; }), SearchEnd::TooCostly);
}

TEST(ExpressionSearch, GoesOnWhenItIsAllowedMoreTime) {
    MadeSearch made = MakeSearch(Expression("a"), std::chrono::milliseconds(0));
    const auto &search = std::get<std::unique_ptr<TextSearch>>(made);
    search->AllowTime(std::chrono::hours(1));
    EXPECT_EQ(search->VisitMatches("b\nb", 0, [](auto &) { return true; }), SearchEnd::Complete);
}

TEST(ExpressionSearch, GivesUpAtTheLimitThatWasSetLast) {
    MadeSearch made = MakeSearch(Expression("a"), std::chrono::hours(1));
    const auto &search = std::get<std::unique_ptr<TextSearch>>(made);
    search->AllowTime(std::chrono::milliseconds(0));
    EXPECT_EQ(search->VisitMatches("b\nb", 0, [](auto &) { return true; }), SearchEnd::TooCostly);
}

namespace {

/// Text of a few letters, so that terms are found, with line ends of Windows.
QString RandomText(std::mt19937 &random, int length) {
    static const QString letters = QString::fromUtf8("abAB ñÑéÉ€_.\n");
    QString text;
    for (int count = 0; count < length; ++count) {
        const QChar letter = letters[static_cast<qsizetype>(random()) % letters.size()];
        text += letter == u'\n' ? QStringLiteral("\r\n") : QString(letter);
    }
    return text;
}

std::vector<ByteRange> ModelMatches(const QString &text, const FindRequest &request) {
    const auto cases = request.MatchCase ? Qt::CaseSensitive : Qt::CaseInsensitive;
    const auto isWord = [&](qsizetype place) {
        const QChar letter = text[place];
        return letter.unicode() >= 0x80 || letter.isLetterOrNumber() || letter == u'_';
    };
    const auto cuts = [&](qsizetype place) {
        return place > 0 && place < text.size() && isWord(place - 1) && isWord(place);
    };
    std::vector<ByteRange> ranges;
    for (qsizetype place = 0; (place = text.indexOf(request.Term, place, cases)) >= 0;) {
        const qsizetype end = place + request.Term.size();
        if (request.WholeWord && (cuts(place) || cuts(end))) {
            ++place;
            continue;
        }
        const auto bytes = [&](qsizetype length) {
            return static_cast<std::size_t>(text.first(length).toUtf8().size());
        };
        ranges.push_back({bytes(place), bytes(end)});
        place = end;
    }
    return ranges;
}

} // namespace

TEST(PlainSearch, FindsWhatAPlainModelFinds) {
    std::mt19937 random(20);
    for (int round = 0; round < 3000; ++round) {
        const QString text = RandomText(random, static_cast<int>(random() % 60));
        FindRequest request;
        do
            request.Term = RandomText(random, 1 + static_cast<int>(random() % 3));
        while (request.Term.contains(u'\n'));
        request.MatchCase = random() % 2 == 0;
        request.WholeWord = random() % 2 == 0;
        const std::string utf8 = text.toStdString();
        ASSERT_EQ(Matches(request, utf8), ModelMatches(text, request))
            << text.toStdString() << " / " << request.Term.toStdString();
    }
}

TEST(ExpressionSearch, FindsWhatAPlainSearchFinds) {
    std::mt19937 random(21);
    for (int round = 0; round < 1000; ++round) {
        const std::string text = RandomText(random, static_cast<int>(random() % 60)).toStdString();
        FindRequest plain;
        do
            plain.Term = RandomText(random, 1 + static_cast<int>(random() % 3));
        while (plain.Term.contains(u'\n'));
        plain.MatchCase = random() % 2 == 0;
        FindRequest expression = plain;
        expression.Term = QStringLiteral("\\Q") + plain.Term + QStringLiteral("\\E");
        expression.IsExpression = true;
        ASSERT_EQ(Matches(expression, text), Matches(plain, text))
            << text << " / " << plain.Term.toStdString();
        ASSERT_EQ(MatchesBackward(expression, text).size(), MatchesBackward(plain, text).size());
    }
}

} // namespace Quillbox
