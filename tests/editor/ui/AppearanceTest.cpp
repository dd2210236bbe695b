// SPDX-License-Identifier: GPL-3.0-or-later
#include "EditorFixture.h"

#include "editor/ui/ScintillaMarks.h"
#include "editor/ui/ScintillaPrinting.h"
#include "state/Language.h"

#include <QFontDatabase>
#include <QFontInfo>
#include <QImage>

namespace Quillbox {

namespace {

using Sci = QsciScintillaBase;

constexpr Color Red = RgbColor(200, 0, 0);
constexpr Color Blue = RgbColor(0, 0, 200);

class Appearance : public EditorTest {
  protected:
    Color Foreground(TextStyle style) const {
        return {static_cast<int>(
            ScintillaText(*Editor).Send(Sci::SCI_STYLEGETFORE, static_cast<int>(style)))};
    }
    std::intptr_t Get(unsigned message, TextStyle style) const {
        return ScintillaText(*Editor).Send(message, static_cast<int>(style));
    }
    std::intptr_t MarginWidth() const {
        return ScintillaText(*Editor).Send(Sci::SCI_GETMARGINWIDTHN, Margin::LineNumbers);
    }

    QFont ShownFont() const {
        char family[256] = {};
        ScintillaText(*Editor).Send(Sci::SCI_STYLEGETFONT, 0,
                                    reinterpret_cast<std::intptr_t>(family));
        return QFont(QString::fromUtf8(family));
    }
};

} // namespace

TEST_F(Appearance, GivesEachClassItsColour) {
    Editor->SetColor(ColorSlot::Keyword, Red);
    Editor->SetColor(ColorSlot::Comment, Blue);
    EXPECT_EQ(Foreground(TextStyle::Keyword), Red);
    EXPECT_EQ(Foreground(TextStyle::Comment), Blue);
    EXPECT_EQ(Foreground(TextStyle::MultiLineComment), Blue);
    EXPECT_NE(Foreground(TextStyle::Number), Blue);
}

TEST_F(Appearance, ShowsAllClassesAsTextWithoutColours) {
    Editor->SetColor(ColorSlot::Text, Blue);
    Editor->SetColor(ColorSlot::Keyword, Red);
    Editor->SetFontStyle(FontStyleClass::Keyword, 1);
    Editor->SetColorSyntax(false);
    EXPECT_EQ(Foreground(TextStyle::Keyword), Blue);
    EXPECT_EQ(Get(Sci::SCI_STYLEGETBOLD, TextStyle::Keyword), 0);
    Editor->SetColorSyntax(true);
    EXPECT_EQ(Foreground(TextStyle::Keyword), Red);
    EXPECT_EQ(Get(Sci::SCI_STYLEGETBOLD, TextStyle::Keyword), 1);
}

TEST_F(Appearance, KeepsClassColoursWhenTheWindowColourChanges) {
    Editor->SetColor(ColorSlot::Keyword, Red);
    Editor->SetColor(ColorSlot::Margin, RgbColor(200, 200, 200));
    Editor->SetColor(ColorSlot::Window, RgbColor(10, 20, 30));
    EXPECT_EQ(Foreground(TextStyle::Keyword), Red);
    const ScintillaText text(*Editor);
    EXPECT_EQ(text.Send(Sci::SCI_STYLEGETBACK, Sci::STYLE_LINENUMBER), 0xC8C8C8);
    EXPECT_EQ(text.Send(Sci::SCI_STYLEGETBACK, Sci::STYLE_DEFAULT), 0x1E140A);
}

TEST_F(Appearance, KnowsTheFontStylesByTheirNumbers) {
    struct Case {
        int Style;
        int Bold;
        int Italic;
        int Underline;
    };
    for (const Case &expected : {Case{0, 0, 0, 0}, Case{1, 1, 0, 0}, Case{2, 0, 1, 0},
                                 Case{3, 1, 1, 0}, Case{4, 0, 0, 1}, Case{77, 0, 0, 0}}) {
        Editor->SetFontStyle(FontStyleClass::String, expected.Style);
        EXPECT_EQ(Get(Sci::SCI_STYLEGETBOLD, TextStyle::String), expected.Bold);
        EXPECT_EQ(Get(Sci::SCI_STYLEGETITALIC, TextStyle::String), expected.Italic);
        EXPECT_EQ(Get(Sci::SCI_STYLEGETUNDERLINE, TextStyle::String), expected.Underline);
    }
}

TEST_F(Appearance, ShowsAFixedPitchFontForOneThatIsNotInstalled) {
    Editor->SetFontName("Courier");
    EXPECT_TRUE(QFontInfo(ShownFont()).fixedPitch() || QFontDatabase::hasFamily("Courier"));
    Editor->SetFontName("No existe en ninguna parte");
    EXPECT_NE(ShownFont().family(), "No existe en ninguna parte");
}

TEST_F(Appearance, ShowsTheSmallestSizeForNone) {
    Editor->SetFontSize(0);
    EXPECT_EQ(Get(Sci::SCI_STYLEGETSIZE, TextStyle::Text), 1);
    Editor->SetFontSize(14);
    EXPECT_EQ(Get(Sci::SCI_STYLEGETSIZE, TextStyle::UserWord), 14);
}

TEST_F(Appearance, TakesATabOfNoColumnsForOne) {
    const ScintillaText text(*Editor);
    Editor->SetTabSize(0);
    EXPECT_EQ(text.Send(Sci::SCI_GETTABWIDTH), 1);
    Editor->SetTabSize(4);
    EXPECT_EQ(text.Send(Sci::SCI_GETTABWIDTH), 4);
    Load("x");
    EXPECT_EQ(text.Send(Sci::SCI_GETTABWIDTH), 4);
}

TEST_F(Appearance, HasLineNumbersWhenAskedAndRoomForTheirDigits) {
    EXPECT_EQ(MarginWidth(), 0);
    Editor->SetLineNumbers(true);
    const std::intptr_t narrow = MarginWidth();
    EXPECT_GT(narrow, 0);
    Load(QByteArray(20000, '\n'));
    EXPECT_GT(MarginWidth(), narrow);
    Editor->ExecuteCommand(EditorCommand::SelectAll);
    Editor->DeleteSel();
    EXPECT_EQ(MarginWidth(), narrow);
    Editor->SetLineNumbers(false);
    EXPECT_EQ(MarginWidth(), 0);
}

TEST_F(Appearance, IsNotPaintedAgainForSettingsThatStayAsTheyAre) {
    Load("if x");
    Editor->show();
    const auto apply = [this] {
        Editor->SetColorSyntax(true);
        Editor->SetColor(ColorSlot::Keyword, Red);
        Editor->SetColor(ColorSlot::Window, RgbColor(255, 255, 250));
        Editor->SetFontName("Courier");
        Editor->SetFontSize(11);
        Editor->SetFontStyle(FontStyleClass::Keyword, 1);
        Editor->SetTabSize(4);
        Editor->SetLineNumbers(true);
        Editor->SetLanguage(SourceLanguage.Name);
    };
    apply();
    QCoreApplication::processEvents();
    PaintCounter counter(*Editor->viewport());
    apply();
    QCoreApplication::processEvents();
    EXPECT_EQ(counter.Count, 0);
}

TEST_F(Appearance, ShowsColoursOnTheScreen) {
    Load("if if if if if if");
    Editor->SetColor(ColorSlot::Keyword, Red);
    Editor->SetFontSize(20);
    const QImage image = Editor->viewport()->grab().toImage();
    bool found = false;
    for (int y = 0; y < image.height() && !found; ++y)
        for (int x = 0; x < image.width() && !found; ++x) {
            const QColor color = image.pixelColor(x, y);
            found = color.red() > 150 && color.green() < 60 && color.blue() < 60;
        }
    EXPECT_TRUE(found);
}

TEST_F(Appearance, TellsAssistiveToolsWhatItIs) {
    EXPECT_EQ(Editor->accessibleName(), "Editor de código");
}

TEST_F(Appearance, OnPaperHasPagesWithTheWholeText) {
    QByteArray lines;
    for (int line = 0; line < 400; ++line)
        lines += "if x // linea\r\n";
    Load(lines);
    EditorPrinter printer("juego.bb");
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(PathOf("juego.pdf"));
    Editor->PrintOn(printer, Editor->LineCount());
    EXPECT_GT(printer.PageCount(), 3);
    EXPECT_LT(printer.PageCount(), 40);
    const QByteArray pdf = Read(PathOf("juego.pdf"));
    EXPECT_TRUE(pdf.startsWith("%PDF"));
    EXPECT_GT(pdf.size(), 5000);
}

TEST_F(Appearance, OnPaperIsOnePageForAShortText) {
    Load("if x");
    EditorPrinter printer("juego.bb");
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(PathOf("juego.pdf"));
    Editor->PrintOn(printer, Editor->LineCount());
    EXPECT_EQ(printer.PageCount(), 1);
}

} // namespace Quillbox
