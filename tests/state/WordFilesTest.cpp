// SPDX-License-Identifier: GPL-3.0-or-later
#include "state/WordFiles.h"

#include "fakes/ErrorNumber.h"
#include "fakes/FakeSystem.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace Quillbox {
namespace {

using testing::ElementsAre;

class WordFilesOfTheProgram : public testing::Test {
  protected:
    void SetKeywords(const QByteArray &content) { Stored.Contents["/q/Keywords.txt"] = content; }
    void SetQuickHelp(const QByteArray &content) { Stored.Contents["/q/QuickHelp.txt"] = content; }

    static QByteArray Entries(int count) {
        QByteArray text;
        for (int number = 1; number <= count; ++number)
            text += "palabra" + QByteArray::number(number) + "\r\n";
        return text;
    }

    CallLog Log;
    FakeFiles Stored{Log};
    FakeDialogs Questions{Log};
    LanguageWords Words;
    WordFiles Reader{"/q/", Words, Stored, Questions};
};

TEST_F(WordFilesOfTheProgram, GiveEveryKeywordItsSlotInItsOwnLetterCase) {
    SetKeywords("Print\r\ncls\r\nEND IF\r\n");

    Reader.LoadKeywords();

    EXPECT_EQ(Words.KeywordTable[1], QString("Print"));
    EXPECT_EQ(Words.KeywordTable[2], QString("cls"));
    EXPECT_EQ(Words.KeywordTable[3], QString("END IF"));
    EXPECT_EQ(Words.KeywordTable[4], QString());
}

TEST_F(WordFilesOfTheProgram, ListTheKeywordsInUpperCaseBehindLineFeeds) {
    SetKeywords("Print\r\ncls\r\nEndIf\r\n");

    Reader.LoadKeywords();

    EXPECT_EQ(Words.LanguageDefinition.Keywords, QString("\nPRINT\nCLS\nENDIF"));
    EXPECT_EQ(Words.KeywordListText, QString("\nPRINT\nCLS\nENDIF"));
}

TEST_F(WordFilesOfTheProgram, ShiftTheQuickHelpWhereOneLineHoldsTwoKeywords) {
    SetKeywords("Print, Input\r\nCls\r\n");
    SetQuickHelp("ayuda de Print\r\nayuda de Cls\r\n");

    Reader.LoadKeywords();
    Reader.LoadQuickHelp();

    EXPECT_EQ(Words.KeywordTable[1], QString("Print"));
    EXPECT_EQ(Words.KeywordTable[2], QString("Input"));
    EXPECT_EQ(Words.QuickHelpTable[2], QString("ayuda de Cls"));
    EXPECT_EQ(Words.KeywordTable[3], QString("Cls"));
    EXPECT_EQ(Words.QuickHelpTable[3], QString());
}

TEST_F(WordFilesOfTheProgram, KeepQuickHelpLinesWhole) {
    SetQuickHelp("Print texto$, \"uno\"\n\n  Cls\n");

    Reader.LoadQuickHelp();

    EXPECT_EQ(Words.QuickHelpTable[1], QString("Print texto$, \"uno\""));
    EXPECT_EQ(Words.QuickHelpTable[2], QString());
    EXPECT_EQ(Words.QuickHelpTable[3], QString("  Cls"));
}

TEST_F(WordFilesOfTheProgram, AreReadAsAnsiText) {
    SetKeywords("a\xF1o\r\n");
    SetQuickHelp("n\xFAmero del a\xF1o\r\n");

    Reader.LoadKeywords();
    Reader.LoadQuickHelp();

    EXPECT_EQ(Words.KeywordTable[1], QString("año"));
    EXPECT_EQ(Words.KeywordListText, QString("\nAÑO"));
    EXPECT_EQ(Words.QuickHelpTable[1], QString("número del año"));
}

TEST_F(WordFilesOfTheProgram, AreNotWarnedAboutWhenTheyAreThere) {
    SetKeywords("");
    SetQuickHelp("");

    Reader.LoadKeywords();
    Reader.LoadQuickHelp();

    EXPECT_TRUE(Questions.Messages.empty());
    EXPECT_EQ(Words.KeywordListText, QString());
}

TEST_F(WordFilesOfTheProgram, AreWarnedAboutWhenKeywordsAreMissing) {
    Reader.LoadKeywords();

    ASSERT_EQ(Questions.Messages.size(), 1U);
    EXPECT_EQ(Questions.Messages[0].Text, QString("El archivo /q/Keywords.txt no existe."));
    EXPECT_EQ(Questions.Messages[0].Caption, QString("Error"));
    EXPECT_EQ(Questions.Messages[0].Icon, MessageIcon::Exclamation);
    EXPECT_EQ(Questions.Messages[0].Buttons, MessageButtons::Ok);
    EXPECT_EQ(Words.KeywordListText, QString());
}

TEST_F(WordFilesOfTheProgram, AreWarnedAboutWhenTheQuickHelpIsMissing) {
    Reader.LoadQuickHelp();

    ASSERT_EQ(Questions.Messages.size(), 1U);
    EXPECT_EQ(Questions.Messages[0].Text, QString("El archivo /q/QuickHelp.txt no existe."));
    EXPECT_EQ(Questions.Messages[0].Caption, QString("Error"));
    EXPECT_EQ(Questions.Messages[0].Icon, MessageIcon::Exclamation);
    EXPECT_EQ(Questions.Messages[0].Buttons, MessageButtons::Ok);
}

TEST_F(WordFilesOfTheProgram, AreNotOpenedWhenTheyAreMissing) {
    Reader.LoadKeywords();

    EXPECT_THAT(Log.CallsOf({"files."}), ElementsAre("files.CanRead /q/Keywords.txt"));
}

TEST_F(WordFilesOfTheProgram, HoldSixHundredKeywords) {
    SetKeywords(Entries(600));

    Reader.LoadKeywords();

    EXPECT_EQ(Words.KeywordTable[1], QString("palabra1"));
    EXPECT_EQ(Words.KeywordTable[600], QString("palabra600"));
    EXPECT_TRUE(Words.KeywordListText.endsWith("\nPALABRA600"));
}

TEST_F(WordFilesOfTheProgram, EndTheStartAtTheSixHundredAndFirstKeyword) {
    SetKeywords(Entries(601));

    EXPECT_EQ(ErrorNumberOf([this] { Reader.LoadKeywords(); }), 9);
}

TEST_F(WordFilesOfTheProgram, HoldSixHundredLinesOfQuickHelp) {
    SetQuickHelp(Entries(600));

    Reader.LoadQuickHelp();

    EXPECT_EQ(Words.QuickHelpTable[600], QString("palabra600"));
}

TEST_F(WordFilesOfTheProgram, EndTheStartAtTheSixHundredAndFirstLineOfQuickHelp) {
    SetQuickHelp(Entries(601));

    EXPECT_EQ(ErrorNumberOf([this] { Reader.LoadQuickHelp(); }), 9);
}

TEST(LanguageRules, AreFixed) {
    LanguageDefinition language;
    language.Case = CaseSensitivity::On;

    SetLanguageRules(language);

    EXPECT_EQ(language.Case, CaseSensitivity::Off);
    EXPECT_EQ(language.SingleLineComment, QString("//"));
    EXPECT_EQ(language.MultiLineCommentStart, QString("/*"));
    EXPECT_EQ(language.MultiLineCommentEnd, QString("*/"));
    EXPECT_EQ(language.StringDelimiter, QString(QChar(34)));
    EXPECT_EQ(language.Operators,
              QString("+\n-\n*\n/\n^\n%\n&\n!\n=\n<\n>\n|\n.\n,\n;\n:\n[\n]\n(\n)\n"));
}

TEST(LanguageRules, BeginWithoutWords) {
    LanguageDefinition language;

    SetLanguageRules(language);

    EXPECT_EQ(language.Keywords, QString());
    EXPECT_EQ(language.UserWords, QString());
}

TEST(LanguageRules, DoNotGrowWhenTheyAreSetAgain) {
    LanguageDefinition once;
    SetLanguageRules(once);
    LanguageDefinition twice = once;

    SetLanguageRules(twice);

    EXPECT_TRUE(twice == once);
}

} // namespace
} // namespace Quillbox
