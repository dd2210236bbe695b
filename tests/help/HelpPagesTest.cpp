// SPDX-License-Identifier: GPL-3.0-or-later
#include "help/HelpPages.h"

#include "fakes/CallLog.h"

#include <gmock/gmock.h>

namespace Quillbox {
namespace {

TEST(DecodingAPage, FollowsTheCharacterSetOfAMetaElement) {
    for (const char *page :
         {"<meta http-equiv='Content-Type' content='text/html; charset=windows-1252'>\xF1\x80",
          "<META HTTP-EQUIV=Content-Type CONTENT=\"text/html; CHARSET=ISO-8859-1\">\xF1\x80",
          "<meta charset=\"windows-1252\">\xF1\x80", "<meta charset=iso-8859-15>\xF1\x80"})
        EXPECT_TRUE(DecodePage(page).endsWith(QStringLiteral("ñ€"))) << page;
    EXPECT_TRUE(DecodePage("<meta charset='utf-8'>\xC3\xB1").endsWith(u'ñ'));
}

TEST(DecodingAPage, BelievesADeclaredWindowsPageEvenIfItsBytesCouldBeUtf8) {
    EXPECT_TRUE(DecodePage("<meta charset=windows-1252>\xC3\xB1").endsWith(QStringLiteral("Ã±")));
}

TEST(DecodingAPage, DoesNotBelieveADeclarationThatTheBytesContradict) {
    EXPECT_TRUE(DecodePage("<meta charset=utf-8>a\xF1o").endsWith(QStringLiteral("año")));
}

TEST(DecodingAPage, TakesAnUndeclaredPageForUtf8WhenItIsValid) {
    EXPECT_EQ(DecodePage("a\xC3\xB1o"), "año");
    EXPECT_EQ(DecodePage("a\xF1o"), "año");
    EXPECT_EQ(DecodePage("ano"), "ano");
    EXPECT_EQ(DecodePage(""), "");
}

TEST(DecodingAPage, RecognisesByteOrderMarks) {
    EXPECT_EQ(DecodePage("\xEF\xBB\xBF"
                         "a\xC3\xB1o"),
              "año");
    EXPECT_EQ(DecodePage(QByteArray("\xFF\xFE"
                                    "a\0\xF1\0",
                                    6)),
              "añ");
}

TEST(DecodingAPage, FollowsTheEncodingOfAnXmlDeclaration) {
    EXPECT_TRUE(DecodePage("<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?>\xC3\xB1")
                    .endsWith(QStringLiteral("Ã±")));
}

TEST(ShowingAFile, LeavesPagesAsTheyAre) {
    for (const char *name : {"/a/x.htm", "/a/x.HTML", "/a/x.htm ", "/a/x.xml"})
        EXPECT_EQ(PageOf(name, "<p>a</p>"), "<p>a</p>") << name;
}

TEST(ShowingAFile, KnowsAPageWithoutItsEnding) {
    EXPECT_EQ(PageOf("/a/indice", "\n<HTML><p>a"), "\n<HTML><p>a");
    EXPECT_EQ(PageOf("/a/x.php", "<!DOCTYPE html><p>a"), "<!DOCTYPE html><p>a");
}

TEST(ShowingAFile, ShowsSourcesAsText) {
    EXPECT_EQ(PageOf("/a/x.BB", "If a<b Then\r\n"), "<pre>If a&lt;b Then\r\n</pre>");
    EXPECT_EQ(PageOf("/a/x.txt", "<b>a\xF1o"), "<pre>&lt;b&gt;año</pre>");
}

TEST(ShowingAFile, ShowsAPictureOnAPageOfItsOwn) {
    EXPECT_EQ(PageOf("/mis juegos/100%.PNG", "\x89PNG"),
              "<img src=\"file:///mis%20juegos/100%25.PNG\">");
}

TEST(ShowingAFile, SaysThatAProgramIsNoPage) {
    EXPECT_TRUE(PageOf("/a/<x>.exe", QByteArray("MZ\0\0", 4))
                    .contains(QStringLiteral("<b>/a/&lt;x&gt;.exe</b> no es una página")));
}

TEST(ShowingAFile, ShowsThePartsOfAFramesetAsLinks) {
    const QString page = PageOf("/a/x.htm", "<html><frameset cols='20%,80%'>"
                                            "<FRAME NAME=menu SRC=menu.htm scrolling=no>"
                                            "<frame title=\"El manual\" name='m' src='sub/m.htm'>"
                                            "<frame src=\"pie.htm\"><frame name=vacia>"
                                            "<!-- <frame src=no.htm> --></frameset></html>");
    EXPECT_TRUE(page.contains("<a href=\"menu.htm\">menu</a>"));
    EXPECT_TRUE(page.contains("<a href=\"sub/m.htm\">El manual</a>"));
    EXPECT_TRUE(page.contains("<a href=\"pie.htm\">pie.htm</a>"));
    EXPECT_EQ(page.count("<a "), 3);
}

TEST(ShowingAFile, ImportsTheStyleSheetsThatAPageLinks) {
    EXPECT_EQ(PageOf("/a/x.htm", "<title>a</title><LINK rel=stylesheet href='a b.css'>"
                                 "<link rel=icon href=b.ico><p>c"),
              "<title>a</title><style type=\"text/css\">@import url(\"a b.css\");</style>"
              "<link rel=icon href=b.ico><p>c");
}

TEST(ShowingAFile, LeavesAPageWithAnInnerFrameAsItIs) {
    EXPECT_EQ(PageOf("/a/x.htm", "<p>a<iframe src=b.htm></iframe>"),
              "<p>a<iframe src=b.htm></iframe>");
}

TEST(ShowingAFile, MeasuresLettersInPointsSoThatTheyCanBeZoomed) {
    EXPECT_EQ(PageOf("/a/x.htm", "<p style='FONT-SIZE: 16px; margin: 8px'>16px"),
              "<p style='FONT-SIZE: 12pt; margin: 8px'>16px");
    EXPECT_EQ(WithSizesInPoints("p{font-size:14.0px}b{font-size:9pt}"),
              "p{font-size:10.5pt}b{font-size:9pt}");
}

TEST(ShowingAFile, MeasuresTheLettersOfStyleElementsToo) {
    EXPECT_EQ(PageOf("/a/x.htm", "<STYLE>\np{font-size:16px}\n</STYLE><p>font-size:16px"),
              "<STYLE>\np{font-size:12pt}\n</STYLE><p>font-size:16px");
}

TEST(ShowingAFile, LeavesTheSizesThatAPageWritesAbout) {
    const QString page = "<pre title='font-size: 12px'>font-size: 12px\n"
                         "&lt;p style=\"font-size: 12px\"&gt;</pre>";
    EXPECT_EQ(PageOf("/a/x.htm", page.toUtf8()), page);
}

TEST(MissingPage, NamesThePage) {
    EXPECT_TRUE(MissingPage("/a/<b>.htm").contains("<b>/a/&lt;b&gt;.htm</b>"));
}

TEST(MissingPage, SaysWhereAPageIsChosenWhenThereIsNone) {
    EXPECT_TRUE(MissingPage("").contains(QStringLiteral("Configuración")));
}

} // namespace
} // namespace Quillbox
