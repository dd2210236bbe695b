// SPDX-License-Identifier: GPL-3.0-or-later
#include "reference/Pages.h"

#include <gmock/gmock.h>

namespace Quillbox {
namespace {

using testing::HasSubstr;
using testing::Not;

Reference Small() {
    return {
        {{"And", "expr And expr", "Sí, si a<b & c."}, {"Cls", "Cls", "Borra la pantalla."}},
        {{"operator", {}, "El lenguaje", "Operadores", "Cuentas.", {"And"}, {{"Así:", {"a<b"}}}},
         {"graphics", {}, "Gráficos", "Dibujo", "Dibujar.", {"Cls"}, {}}},
        {{"borrar.bb", "Borrar", {"graphics"}, "Borra <todo>."}}};
}

std::string Html(const ReferencePage &page) { return page.Html.toStdString(); }

TEST(ReferencePages, AreOnePerThemeAndThreeForAll) {
    QStringList files;
    for (const ReferencePage &page : MakePages(Small()))
        files += page.File;
    files.sort();
    EXPECT_EQ(files, QStringList({"alfabetico.htm", "ejemplos.htm", "graphics.htm", "index.htm",
                                  "operator.htm"}));
}

TEST(ReferencePages, WriteTheIndexLast) { EXPECT_EQ(MakePages(Small()).back().File, "index.htm"); }

TEST(ReferencePages, DeclareTheirEncodingAndTheirTitle) {
    for (const ReferencePage &page : MakePages(Small())) {
        EXPECT_THAT(Html(page), HasSubstr("<meta charset=\"utf-8\">")) << page.File.toStdString();
        EXPECT_THAT(Html(page), Not(HasSubstr("<title></title>"))) << page.File.toStdString();
    }
}

TEST(ReferencePages, EscapeWhatHtmlWouldTakeForMarks) {
    const std::string html = Html(ThemePage(Small(), 0));
    EXPECT_THAT(html, HasSubstr("Sí, si a&lt;b &amp; c."));
    EXPECT_THAT(html, HasSubstr("<pre>a&lt;b</pre>"));
    EXPECT_THAT(Html(ExamplesPage(Small())), HasSubstr("Borra &lt;todo&gt;."));
}

TEST(ReferencePages, GiveEveryWordAnAnchorASignatureAndADescription) {
    EXPECT_THAT(Html(ThemePage(Small(), 1)),
                HasSubstr("<a name=\"Cls\"></a>Cls</td><td><code>Cls</code></td>"
                          "<td>Borra la pantalla.</td>"));
}

TEST(ReferencePages, LinkEveryWordFromTheAlphabet) {
    const std::string html = Html(AlphabetPage(Small()));
    EXPECT_THAT(html, HasSubstr("<a href=\"operator.htm#And\">And</a>"));
    EXPECT_THAT(html, HasSubstr("<a href=\"graphics.htm#Cls\">Cls</a>"));
    EXPECT_THAT(html, HasSubstr("<a href=\"#A\">A</a> <a href=\"#C\">C</a>"));
}

TEST(ReferencePages, SortTheAlphabetWithoutRegardToLetterCase) {
    Reference reference = Small();
    reference.Words.push_back({"aSin", "aSin", ""});
    reference.Themes[1].Words += "aSin";
    const QString html = AlphabetPage(reference).Html;
    EXPECT_LT(html.indexOf("#And\""), html.indexOf("#aSin\""));
    EXPECT_LT(html.indexOf("#aSin\""), html.indexOf("#Cls\""));
}

TEST(ReferencePages, OpenTheExamplesOfATheme) {
    const auto link = HasSubstr("<a href=\"../Ejemplos/borrar.bb\">Borrar</a>");
    EXPECT_THAT(Html(ThemePage(Small(), 1)), link);
    EXPECT_THAT(Html(ExamplesPage(Small())), link);
    EXPECT_THAT(Html(ThemePage(Small(), 0)), Not(link));
}

TEST(ReferencePages, SayThatThereAreNoExamples) {
    Reference reference = Small();
    reference.Examples.clear();
    EXPECT_THAT(Html(ExamplesPage(reference)), HasSubstr("No hay programas de ejemplo"));
}

TEST(ReferencePages, LeadToTheThemesBesideThem) {
    EXPECT_THAT(Html(ThemePage(Small(), 0)),
                HasSubstr("Siguiente: <a href=\"graphics.htm\">Dibujo</a>"));
    EXPECT_THAT(Html(ThemePage(Small(), 1)),
                HasSubstr("Anterior: <a href=\"operator.htm\">Operadores</a>"));
    EXPECT_THAT(Html(ThemePage(Small(), 1)), Not(HasSubstr("Siguiente: ")));
}

TEST(ReferencePages, ListTheThemesUnderTheirGroups) {
    const std::string html = Html(ThemeIndexPage(Small()));
    EXPECT_THAT(html, HasSubstr("<h2>El lenguaje</h2>"));
    EXPECT_THAT(html, HasSubstr("<a href=\"graphics.htm\">Dibujo</a>"));
}

} // namespace
} // namespace Quillbox
