// SPDX-License-Identifier: GPL-3.0-or-later
#include "checker/TestFiles.h"
#include "checker/Tokenizer.h"
#include "fakes/SourceTree.h"

#include <gtest/gtest.h>
#include <random>

namespace Quillbox {

namespace {

std::string Repeated(std::string_view text, int times) {
    std::string all;
    for (int i = 0; i < times; ++i)
        all += text;
    return all;
}

// A mistake, if any, stands on a line of the text and has a message in one line without a colon.
void ExpectASensibleAnswer(std::string_view source) {
    const auto mistake = FindStructureMistake(source);
    if (!mistake)
        return;
    EXPECT_GE(mistake->LineNumber, 1);
    EXPECT_LE(mistake->LineNumber, CountLines(source));
    EXPECT_FALSE(mistake->Message.empty());
    EXPECT_EQ(mistake->Message.find_first_of(":\r\n"), std::string::npos) << mistake->Message;
}

std::string WholeGame() {
    return ReadBytes(SourceTree() / "tests/data/checker/correct_game/source.bb");
}

} // namespace

TEST(OddText, OfEverySingleByteIsAnswered) {
    for (int byte = 0; byte < 256; ++byte)
        ExpectASensibleAnswer(std::string(1, static_cast<char>(byte)));
}

TEST(OddText, OfRandomBytesIsAnswered) {
    std::mt19937 random(1);
    for (int round = 0; round < 500; ++round) {
        std::string source;
        for (int i = 0; i < 400; ++i)
            source += static_cast<char>(random() % 256);
        ExpectASensibleAnswer(source);
    }
}

TEST(OddText, OfShuffledWordsIsAnswered) {
    const std::vector<std::string_view> words{
        "If ",  "Then ",   "Else ",  "ElseIf ",   "EndIf ",  "End ",  "For ",    "To ",   "Step ",
        "Each", "Next ",   "While ", "Wend ",     "Repeat ", "Until", "Forever", "Type",  "Field ",
        "Case", "Default", "Select", "Function ", "a ",      "b$",    "1",       "\"x\"", "\"",
        "(",    ")",       "[",      "]",         "=",       "-",     ":",       "\n",    "\r\n",
        ".c",   "\\d",     ";",      "Not ",      "And ",    ",",     "Object"};
    std::mt19937 random(2);
    for (int round = 0; round < 5000; ++round) {
        std::string source;
        for (int i = 0; i < 60; ++i)
            source += words[random() % words.size()];
        ExpectASensibleAnswer(source);
    }
}

TEST(OddText, CutOffAnywhereIsAnswered) {
    const std::string game = WholeGame();
    for (std::size_t length = 0; length <= game.size(); ++length)
        ExpectASensibleAnswer(std::string_view(game).substr(0, length));
}

TEST(OddText, WithOneByteReplacedIsAnswered) {
    const std::string game = WholeGame();
    for (std::size_t i = 0; i < game.size(); ++i)
        for (const char byte : {'\0', '"', '(', ':', '\n', '\xff'}) {
            std::string source = game;
            source[i] = byte;
            ExpectASensibleAnswer(source);
        }
}

TEST(DeepNesting, OfBlocksIsFollowedToTheEnd) {
    constexpr int depth = 200'000;
    const std::string opened = Repeated("If a\n", depth);
    EXPECT_EQ(Shown(FindStructureMistake(opened + Repeated("EndIf\n", depth))), "ninguno");
    EXPECT_EQ(Shown(FindStructureMistake(opened + Repeated("EndIf\n", depth - 1))),
              "1: falta \"EndIf\" para el \"If\" de la línea 1");
}

TEST(DeepNesting, OfBracketsIsFollowedToTheEnd) {
    constexpr int depth = 200'000;
    const std::string opened = "If " + Repeated("(", depth) + "a";
    EXPECT_EQ(Shown(FindStructureMistake(opened + Repeated(")", depth) + " Print b")), "ninguno");
    EXPECT_EQ(Shown(FindStructureMistake(opened + Repeated(")", depth - 1) + " Print b")),
              "1: falta \")\"");
}

TEST(DeepNesting, OfOneLineIfsIsFollowedToTheEnd) {
    constexpr int depth = 200'000;
    EXPECT_EQ(Shown(FindStructureMistake(Repeated("If a ", depth) + "b " +
                                         Repeated("Else c ", depth) + "\nNext")),
              "2: \"Next\" sin \"For\"");
}

TEST(LargeText, OfTenMegabytesIsCheckedToItsEnd) {
    std::string source;
    const std::string game = WholeGame() + "\r\n";
    while (source.size() < 10'000'000)
        source += game;
    const int lines = CountLines(source);
    source += "Wend";
    EXPECT_EQ(Shown(FindStructureMistake(source)),
              std::to_string(lines + 1) + ": \"Wend\" sin \"While\"");
}

TEST(LargeText, OfOneLineIsChecked) {
    EXPECT_EQ(Shown(FindStructureMistake(Repeated("a=(b+1) : ", 500'000) + "Next")),
              "1: \"Next\" sin \"For\"");
}

} // namespace Quillbox
