// SPDX-License-Identifier: GPL-3.0-or-later
#include "EditorFixture.h"
#include "state/Language.h"

#include <random>

namespace Quillbox {

namespace {

using Sci = QsciScintillaBase;

class EditorColouring : public EditorTest {
  protected:
    ScintillaText Text() const { return ScintillaText(*Editor); }

    std::intptr_t ColouredEnd() const { return Text().Send(Sci::SCI_GETENDSTYLED); }

    /// Has the component ask for colours up to `end`, as it does when it paints.
    void ColourUpTo(std::intptr_t end) const {
        const std::intptr_t start = ColouredEnd();
        if (end > start)
            Text().Send(Sci::SCI_COLOURISE, start, end);
    }

    std::string Shown(std::intptr_t start, std::intptr_t end) const {
        std::string letters;
        for (std::intptr_t position = start; position < end; ++position)
            letters += ".nkocmsu"[Text().Send(Sci::SCI_GETSTYLEAT, position)];
        return letters;
    }

    std::string Shown() const {
        ColourUpTo(Text().Length());
        return Shown(0, Text().Length());
    }

    static std::string ByRule(const LanguageDefinition &language, std::string_view text) {
        std::vector<TextStyle> styles(text.size());
        ColouringRules(language).Colour(text, ColouringState::Code, styles.data());
        std::string letters;
        for (const TextStyle style : styles)
            letters += ".nkocmsu"[static_cast<int>(style)];
        return letters;
    }

    std::string ByRule() const {
        const ScintillaText text = Text();
        return ByRule(TestLanguage(), text.Bytes(0, text.Length()));
    }

    void LoadLines(int count) {
        QByteArray lines;
        for (int line = 0; line < count; ++line)
            lines += "if foo" + QByteArray::number(line) + " = 1 // x\r\n";
        Load(lines);
    }
};

constexpr std::string_view Pieces[] = {"//",   "/*", "*/",  "\"",    "\n", "\r",
                                       "\r\n", "if", "foo", ".5",    " ",  "\xC3\xB1",
                                       "\n\n", "1",  "+",   "x\ny\n"};

} // namespace

TEST_F(EditorColouring, IsThatOfTheRules) {
    Load("if x // y\n/* a\nb */ 12 \"if\"");
    EXPECT_EQ(Shown(), ByRule());
    EXPECT_EQ(Shown().substr(0, 10), "kk...cccc.");
}

TEST_F(EditorColouring, ReachesOnlyAsFarAsTheTextShows) {
    LoadLines(5000);
    Editor->grab();
    EXPECT_GT(ColouredEnd(), 0);
    EXPECT_LT(ColouredEnd(), 10000);
}

TEST_F(EditorColouring, GoesOnFromTheEndOfTheColouredTextBehindAnEdit) {
    LoadLines(5000);
    ColourUpTo(Text().Length());
    Editor->SetCaretPos(At(10, 3));
    Type("zzz");
    EXPECT_LT(ColouredEnd(), 1000);
    ColourUpTo(ColouredEnd() + 1);
    EXPECT_EQ(ColouredEnd(), Text().Length());
    EXPECT_EQ(Shown(), ByRule());
}

TEST_F(EditorColouring, RunsOnBehindAnEditThatOpensAComment) {
    LoadLines(300);
    ColourUpTo(Text().Length());
    Editor->InsertText("/*", At(10, 0));
    EXPECT_EQ(Shown(), ByRule());
    Editor->Undo();
    EXPECT_EQ(Shown(), ByRule());
    Editor->InsertText("/*", At(10, 0));
    Editor->InsertText("*/", At(250, 0));
    EXPECT_EQ(Shown(), ByRule());
}

TEST_F(EditorColouring, OfTextAfterAnyEditsIsThatOfTheRules) {
    for (unsigned seed = 0; seed < 150; ++seed) {
        std::mt19937 random(seed);
        const auto below = [&random](std::intptr_t limit) {
            return static_cast<std::intptr_t>(random() % static_cast<unsigned long>(limit));
        };
        Load("");
        const ScintillaText text = Text();
        for (int edit = 0; edit < 120; ++edit) {
            const std::intptr_t place =
                text.Send(Sci::SCI_POSITIONAFTER,
                          text.Send(Sci::SCI_POSITIONBEFORE, below(text.Length() + 1)));
            switch (below(6)) {
            case 0: {
                const auto end =
                    text.Send(Sci::SCI_POSITIONAFTER, std::min(text.Length(), place + below(12)));
                text.Replace(place, end, "");
                break;
            }
            case 1:
                text.Send(below(2) == 0 ? Sci::SCI_UNDO : Sci::SCI_REDO);
                break;
            case 2:
                ColourUpTo(below(text.Length() + 1));
                break;
            default:
                text.Replace(place, place, Pieces[below(std::size(Pieces))]);
            }
            // The component has a line coloured from its start.
            const std::intptr_t coloured = text.LineStart(text.LineOf(ColouredEnd()));
            ASSERT_EQ(Shown(0, coloured), ByRule().substr(0, static_cast<std::size_t>(coloured)))
                << "seed " << seed << " edit " << edit;
        }
        ASSERT_EQ(Shown(), ByRule()) << "seed " << seed;
    }
}

TEST_F(EditorColouring, FollowsANewDefinition) {
    Load("if then foo");
    EXPECT_EQ(Shown(), "kk.kkkk....");
    LanguageDefinition language = TestLanguage();
    language.Keywords = "\nFOO";
    Languages.RegisterLanguage(SourceLanguage.Name, language);
    EXPECT_EQ(Shown(), "........kkk");
}

TEST_F(EditorColouring, FollowsALanguageThatIsRegisteredLater) {
    Load("rem");
    Editor->SetLanguage("Otro");
    EXPECT_EQ(Shown(), "...");
    LanguageDefinition language;
    language.Keywords = "\nREM";
    Languages.RegisterLanguage("Otro", language);
    EXPECT_EQ(Shown(), "kkk");
}

TEST_F(EditorColouring, ShowsNewUserWordsInTheTextInView) {
    LoadLines(3000);
    Editor->show();
    ColourUpTo(Text().Length());
    LanguageDefinition language = TestLanguage();
    language.UserWords = "\nfoo0\nfoo1500\nfoo2990";
    Editor->SetTopIndex({1500});
    Languages.RegisterLanguage(SourceLanguage.Name, language);
    const std::intptr_t farBelow = Text().LineStart({2000});
    Editor->grab();
    EXPECT_LT(ColouredEnd(), farBelow);
    const auto wordStyle = [this](int line) {
        return Text().Send(Sci::SCI_GETSTYLEAT, Text().LineStart({line}) + 3);
    };
    EXPECT_EQ(wordStyle(1500), static_cast<int>(TextStyle::UserWord));
    Editor->SetTopIndex({0});
    Editor->grab();
    EXPECT_EQ(wordStyle(0), static_cast<int>(TextStyle::UserWord));
    Editor->SetTopIndex({2990});
    Editor->grab();
    EXPECT_EQ(wordStyle(2990), static_cast<int>(TextStyle::UserWord));
    EXPECT_EQ(Shown(), ByRule(language, Text().Bytes(0, Text().Length())));
}

TEST_F(EditorColouring, OfScrolledTextWithNewUserWordsIsThatOfTheRules) {
    std::mt19937 random(5);
    LoadLines(2000);
    Editor->show();
    LanguageDefinition language = TestLanguage();
    for (int round = 0; round < 60; ++round) {
        const int line = static_cast<int>(random() % 2000);
        if (round % 3 == 0) {
            language.UserWords = "\nfoo" + QString::number(line);
            Languages.RegisterLanguage(SourceLanguage.Name, language);
        }
        if (round % 5 == 0)
            Editor->InsertText(round % 2 == 0 ? "foo7 \"" : "/* x */\n", At(line, 0));
        Editor->SetTopIndex({line});
        Editor->grab();
        const ScintillaText text = Text();
        const auto top = static_cast<int>(text.Send(Sci::SCI_GETFIRSTVISIBLELINE));
        const auto start = text.LineStart({top});
        const auto end = std::min(ColouredEnd(), text.LineStart({top + 10}));
        ASSERT_EQ(Shown(start, end), ByRule(language, text.Bytes(0, text.Length()))
                                         .substr(static_cast<std::size_t>(start),
                                                 static_cast<std::size_t>(end - start)))
            << "round " << round;
    }
}

TEST_F(EditorColouring, PaintsNoMoreOnceNothingChanges) {
    LoadLines(200);
    Editor->show();
    QCoreApplication::processEvents();
    PaintCounter counter(*Editor->viewport());
    LanguageDefinition language = TestLanguage();
    language.UserWords = "\nfoo3";
    Languages.RegisterLanguage(SourceLanguage.Name, language);
    for (int round = 0; round < 20; ++round)
        QCoreApplication::processEvents();
    EXPECT_GE(counter.Count, 1);
    EXPECT_LE(counter.Count, 3);
    const int before = counter.Count;
    Languages.RegisterLanguage(SourceLanguage.Name, language);
    for (int round = 0; round < 20; ++round)
        QCoreApplication::processEvents();
    EXPECT_EQ(counter.Count, before);
}

TEST_F(EditorColouring, GoesWithTheTextToAnotherEditor) {
    LoadLines(300);
    ColourUpTo(Text().Length());
    Editor->InsertText("/*", At(20, 0));
    const auto other = NewEditor();
    other->TakeContentsFrom(*Editor);
    other->InsertText("*/", At(200, 0));
    Editor.reset();
    Editor = NewEditor();
    Editor->TakeContentsFrom(*other);
    EXPECT_EQ(Shown(), ByRule());
}

TEST_F(EditorColouring, IsLeftToTheNewOwnerOfASharedText) {
    Load("if foo");
    const auto other = NewEditor();
    other->SetLanguage("Otro");
    other->TakeContentsFrom(*Editor);
    Editor->grab();
    other->grab();
    EXPECT_EQ(Shown(), "......");
    Load("if foo");
    EXPECT_EQ(Shown(), "kk....");
}

} // namespace Quillbox
