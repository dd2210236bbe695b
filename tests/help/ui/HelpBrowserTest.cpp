// SPDX-License-Identifier: GPL-3.0-or-later
#include "help/ui/HelpFolder.h"
#include "help/ui/PageImages.h"

#include "fakes/Waiting.h"

#include <QAbstractTextDocumentLayout>
#include <QClipboard>
#include <QImage>
#include <QMenu>
#include <QScrollBar>
#include <QTemporaryDir>
#include <QTextBlock>
#include <QTimer>

namespace Quillbox {
namespace {

/// The browser alone, on pages in a folder whose name is as difficult as names get.
class TheHelpBrowser : public testing::Test {
  protected:
    TheHelpBrowser() {
        Browser.BeforeNavigate = [this](const QString &url) {
            Asked.append(url);
            return Answer;
        };
        Browser.resize(500, 300);
        Browser.show();
        QApplication::setActiveWindow(&Browser);
        Browser.setFocus();
    }

    QString PathOf(const QString &name) const {
        return Folder.path() + QStringLiteral("/mis páginas 100%41/") + name;
    }
    void Show(const QByteArray &page) {
        WritePage(PathOf("index.htm"), page);
        Browser.Navigate(PathOf("index.htm"));
        DoWhatIsDue();
    }
    QString Text() const { return Browser.toPlainText(); }
    QSizeF SizeOfTheFirstPicture() {
        const QTextBlock block = Browser.document()->begin();
        return Browser.document()->documentLayout()->blockBoundingRect(block).size();
    }
    void WritePicture(const QString &name, QSize size) {
        QImage image(size, QImage::Format_RGB32);
        image.fill(Qt::red);
        ASSERT_TRUE(image.save(PathOf(name)));
    }
    double Height() const { return Browser.document()->documentLayout()->documentSize().height(); }

    QTemporaryDir Folder;
    QStringList Asked;
    NavigationAnswer Answer = NavigationAnswer::Proceed;
    HelpBrowser Browser;
};

TEST_F(TheHelpBrowser, ShowsPagesOfEitherCharacterSet) {
    Show("<p>a\xF1o</p>");
    EXPECT_EQ(Text(), "año");
    WritePage(PathOf("otra.htm"), "<p>ma\xC3\xB1"
                                  "ana</p>");
    Browser.Navigate(PathOf("otra.htm"));
    EXPECT_EQ(Text(), "mañana");
}

TEST_F(TheHelpBrowser, FollowsLinksWithBlanksAccentsAndPercentSigns) {
    WritePage(PathOf("a b/50% año.htm"), "<p>llegada</p>");
    for (const QByteArray link : {"a b/50%25 a\xF1o.htm", "a%20b/50%25%20a%C3%B1o.htm"}) {
        Show("<a href=\"" + link + "\">sigue</a>");
        ClickOn(Browser, "sigue");
        EXPECT_EQ(Text(), "llegada") << link.toStdString();
    }
}

TEST_F(TheHelpBrowser, FollowsUnquotedLinksAndThoseOfWindows) {
    WritePage(PathOf("sub/pagina.htm"), "<a href=..\\OTRA.HTM>otra</a>");
    WritePage(PathOf("otra.htm"), "<p>llegada</p>");
    Show("<A HREF=Sub\\Pagina.htm>sigue</A>");
    ClickOn(Browser, "sigue");
    ASSERT_EQ(Text(), "otra");
    ClickOn(Browser, "otra");
    EXPECT_EQ(Text(), "llegada");
}

TEST_F(TheHelpBrowser, FindsPagesWhoseNamesOrLinksEndInABlank) {
    WritePage(PathOf("una.htm "), "<p>una</p>");
    WritePage(PathOf("otra.htm"), "<p>otra</p>");
    Show("<a href='una.htm'>u</a> <a href='otra.htm%20'>o</a>");
    ClickOn(Browser, "u");
    EXPECT_EQ(Text(), "una");
    Browser.backward();
    ClickOn(Browser, "o");
    EXPECT_EQ(Text(), "otra");
}

TEST_F(TheHelpBrowser, ShowsTheIndexPageOfAFolder) {
    WritePage(PathOf("manual/index.html"), "<p>manual</p>");
    Show("<a href='manual/'>sigue</a>");
    ClickOn(Browser, "sigue");
    EXPECT_EQ(Text(), "manual");
}

TEST_F(TheHelpBrowser, AsksWithTheWholeAddressAndStaysWhenItIsRefused) {
    Show("<a href='a b.bb'>sigue</a>");
    Asked.clear();
    Answer = NavigationAnswer::Cancel;
    ClickOn(Browser, "sigue");
    EXPECT_EQ(Asked,
              QStringList{QUrl::fromLocalFile(PathOf("a b.bb")).toString(QUrl::FullyEncoded)});
    EXPECT_EQ(Text(), "sigue");
    EXPECT_FALSE(Browser.isBackwardAvailable());
}

TEST_F(TheHelpBrowser, HandsOverWebAddressesUnchanged) {
    Show("<a href=\"https://ejemplo.org/a?b=c&amp;d=%C3%B1\">web</a>");
    Asked.clear();
    Answer = NavigationAnswer::Cancel;
    ClickOn(Browser, "web");
    EXPECT_EQ(Asked, QStringList{"https://ejemplo.org/a?b=c&d=%C3%B1"});
}

TEST_F(TheHelpBrowser, GoesBackAndForwardWithoutAsking) {
    WritePage(PathOf("otra.htm"), "<p>otra</p>");
    Show("<a href=otra.htm>sigue</a>");
    ClickOn(Browser, "sigue");
    Asked.clear();
    QTest::keyClick(&Browser, Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(Text(), "sigue");
    QTest::keyClick(&Browser, Qt::Key_Right, Qt::AltModifier);
    EXPECT_EQ(Text(), "otra");
    QTest::mouseClick(Browser.viewport(), Qt::BackButton);
    EXPECT_EQ(Text(), "sigue");
    QTest::mouseClick(Browser.viewport(), Qt::ForwardButton);
    EXPECT_EQ(Text(), "otra");
    EXPECT_TRUE(Asked.isEmpty());
}

TEST_F(TheHelpBrowser, ScrollsToAnAnchorWithAnAccent) {
    Show("<a href='#secci\xC3\xB3n'>sigue</a>" + QByteArray("<p>.</p>").repeated(60) +
         "<a name='secci\xC3\xB3n'></a><p>final</p>" + QByteArray("<p>.</p>").repeated(60));
    ClickOn(Browser, "sigue");
    EXPECT_TRUE(Browser.viewport()->rect().contains(PlaceOf(Browser, "final")));
    EXPECT_TRUE(Browser.isBackwardAvailable());
}

TEST_F(TheHelpBrowser, ShowsASourceWithAnotherEndingAsText) {
    WritePage(PathOf("ejemplo.BB"), "If a<b Then\r\n  Print \"a\xF1o\"\r\n");
    Show("<a href='ejemplo.BB'>sigue</a>");
    ClickOn(Browser, "sigue");
    EXPECT_EQ(Text().trimmed(), "If a<b Then\n  Print \"año\"");
}

TEST_F(TheHelpBrowser, KeepsAMissingPageInTheHistory) {
    Show("<a href='falta.htm'>sigue</a>");
    ClickOn(Browser, "sigue");
    EXPECT_TRUE(Text().contains(PathOf("falta.htm")));
    Browser.backward();
    EXPECT_EQ(Text(), "sigue");
    Browser.forward();
    EXPECT_TRUE(Text().contains("falta.htm"));
}

TEST_F(TheHelpBrowser, SaysThatNoPageIsChosen) {
    Show("<p>a</p>");
    Browser.Navigate(QString());
    EXPECT_TRUE(Text().contains("No hay ninguna página elegida"));
}

TEST_F(TheHelpBrowser, TakesStyleSheetsOfPageAndFileIntoAccount) {
    WritePage(PathOf("Estilo.css"), "h1 { color: #ff0000 }");
    Show("<link rel=stylesheet href='estilo.css'><style>p { color: #0000ff }</style>"
         "<h1>uno</h1><p>dos</p>");
    const auto colorOf = [&](const char *text) {
        return Browser.document()->find(text).charFormat().foreground().color();
    };
    EXPECT_EQ(colorOf("uno"), QColor(0xff0000));
    EXPECT_EQ(colorOf("dos"), QColor(0x0000ff));
}

TEST_F(TheHelpBrowser, ShowsPicturesAtTheirSizeAndTheSizeThatIsAsked) {
    WritePage(PathOf("sub/nada.htm"), "");
    WritePicture("Nave.png", QSize(40, 30));
    Show("<img src='nave.PNG'>");
    const double natural = SizeOfTheFirstPicture().height();
    EXPECT_GE(natural, 30);
    EXPECT_LT(natural, 45);
    Browser.Navigate(PathOf("sub/nada.htm"));
    Show("<img src=nave.png width=80>");
    EXPECT_NEAR(SizeOfTheFirstPicture().height(), natural + 30, 2);
}

TEST_F(TheHelpBrowser, MakesNoPictureWiderThanThePage) {
    WritePage(PathOf("index.htm"), "");
    WritePicture("grande.png", QSize(2000, 100));
    Show("<img src=grande.png>");
    EXPECT_EQ(Browser.horizontalScrollBar()->maximum(), 0);
}

TEST_F(TheHelpBrowser, KeepsThePlaceOfAPictureThatIsMissing) {
    Show("<img src=falta.png alt='Una nave'><p>texto</p>");
    EXPECT_GE(SizeOfTheFirstPicture().height(), 40);
}

TEST_F(TheHelpBrowser, FetchesNothingFromANetwork) {
    Show("<p>a</p>");
    WritePage(PathOf("hay.css"), "p { color: red }");
    for (const char *url : {"http://ejemplo.org/a.png", "https://ejemplo.org/a.png",
                            "ftp://ejemplo.org/a.png", "file://otra-maquina/a.png"})
        EXPECT_FALSE(Browser.loadResource(QTextDocument::ImageResource, QUrl(url)).isValid())
            << url;
    EXPECT_FALSE(Browser
                     .loadResource(QTextDocument::StyleSheetResource,
                                   QUrl("http://ejemplo.org" + PathOf("hay.css")))
                     .isValid());
}

TEST(ReadingAPicture, RendersADrawingForTheScreen) {
    const QByteArray drawing = "<svg xmlns='http://www.w3.org/2000/svg' width='20' height='10'/>";
    const QImage image = ReadPicture(drawing, 2);
    EXPECT_EQ(image.size(), QSize(40, 20));
    EXPECT_EQ(image.deviceIndependentSize(), QSizeF(20, 10));
}

TEST(ReadingAPicture, GivesNothingForWhatIsNoPicture) {
    EXPECT_TRUE(ReadPicture("hola", 1).isNull());
}

TEST_F(TheHelpBrowser, MakesEverythingLargerAndSmallerWithTheKeyboard) {
    Show("<p style='font-size: 12pt'>texto</p><p style='font-size: 16px'>otro</p>");
    const double before = Height();
    QTest::keyClick(&Browser, Qt::Key_Plus, Qt::ControlModifier);
    QTest::keyClick(&Browser, Qt::Key_Plus, Qt::ControlModifier);
    EXPECT_GT(Height(), before * 1.15);
    QTest::keyClick(&Browser, Qt::Key_0, Qt::ControlModifier);
    EXPECT_EQ(Height(), before);
    QTest::keyClick(&Browser, Qt::Key_Minus, Qt::ControlModifier);
    EXPECT_LT(Height(), before);
}

void TurnWheel(HelpBrowser &browser, int angle) {
    QWheelEvent event(QPointF(10, 10), browser.mapToGlobal(QPointF(10, 10)), {}, QPoint(0, angle),
                      Qt::NoButton, Qt::ControlModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(browser.viewport(), &event);
}

TEST_F(TheHelpBrowser, ZoomsWithTheWheelWithinItsLimits) {
    Show("<p>texto</p>");
    TurnWheel(Browser, 120);
    EXPECT_EQ(Browser.Zoom(), 1.1);
    for (int i = 0; i < 20; ++i)
        TurnWheel(Browser, 120);
    EXPECT_EQ(Browser.Zoom(), 3);
    for (int i = 0; i < 20; ++i)
        TurnWheel(Browser, -120);
    EXPECT_EQ(Browser.Zoom(), 0.5);
}

TEST_F(TheHelpBrowser, AddsUpTheSmallTurnsOfATouchpadToAStepOfZoom) {
    Show("<p>texto</p>");
    for (int turn = 0; turn < 7; ++turn)
        TurnWheel(Browser, 15);
    EXPECT_EQ(Browser.Zoom(), 1);
    TurnWheel(Browser, 15);
    EXPECT_EQ(Browser.Zoom(), 1.1);
}

TEST_F(TheHelpBrowser, KeepsItsZoomOnTheNextPage) {
    WritePage(PathOf("otra.htm"), "<p>texto</p>");
    Show("<p>texto</p>");
    QTest::keyClick(&Browser, Qt::Key_Plus, Qt::ControlModifier);
    const double height = Height();
    Browser.Navigate(PathOf("otra.htm"));
    EXPECT_EQ(Height(), height);
}

TEST_F(TheHelpBrowser, WalksTheLinksWithTheKeyboard) {
    WritePage(PathOf("b.htm"), "<p>llegada</p>");
    Show("<a href=a.htm>uno</a> texto <a href=b.htm>dos</a>");
    QTest::keyClick(&Browser, Qt::Key_Tab);
    EXPECT_EQ(Browser.textCursor().selectedText(), "uno");
    QTest::keyClick(&Browser, Qt::Key_Tab);
    EXPECT_EQ(Browser.textCursor().selectedText(), "dos");
    QTest::keyClick(&Browser, Qt::Key_Return);
    EXPECT_EQ(Text(), "llegada");
}

TEST_F(TheHelpBrowser, CopiesWhatIsSelected) {
    Show("<p>uno <b>dos</b></p>");
    QTest::keyClick(&Browser, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(&Browser, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), "uno dos");
}

TEST_F(TheHelpBrowser, OffersInSpanishWhatCanBeDoneWithALink) {
    Show("<a href='a b.htm'>sigue</a>");
    QStringList enabled;
    QTimer::singleShot(0, &Browser, [&] {
        auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
        ASSERT_NE(menu, nullptr);
        for (QAction *action : menu->actions())
            if (action->isEnabled() && !action->isSeparator())
                enabled.append(action->text());
        menu->actions()[4]->trigger();
        menu->close();
    });
    const QPoint place = PlaceOf(Browser, "sigue");
    QContextMenuEvent event(QContextMenuEvent::Mouse, place,
                            Browser.viewport()->mapToGlobal(place));
    QApplication::sendEvent(Browser.viewport(), &event);
    EXPECT_EQ(enabled, QStringList({"Copiar la dirección del &enlace", "&Seleccionar todo",
                                    "&Buscar en la página..."}));
    EXPECT_EQ(QApplication::clipboard()->text(),
              QUrl::fromLocalFile(PathOf("a b.htm")).toString(QUrl::FullyEncoded));
}

} // namespace
} // namespace Quillbox
