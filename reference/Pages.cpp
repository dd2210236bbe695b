// SPDX-License-Identifier: GPL-3.0-or-later
#include "reference/Pages.h"

#include "reference/Html.h"

#include <QHash>

#include <algorithm>

namespace Quillbox {
namespace {

const QString IndexFile = QStringLiteral("index.htm");
const QString AlphabetFile = QStringLiteral("alfabetico.htm");
const QString ExamplesFile = QStringLiteral("ejemplos.htm");
const QString TableStart =
    QStringLiteral("<table width=\"100%\" border=\"0\" cellspacing=\"1\" cellpadding=\"5\">\n");
const QString TableEnd = QStringLiteral("</table>\n");

QStringList CommonLinks() {
    return {Link(QStringLiteral("../index.htm"), QStringLiteral("Índice de la ayuda")),
            Link(IndexFile, QStringLiteral("Temas")),
            Link(AlphabetFile, QStringLiteral("De la A a la Z")),
            Link(ExamplesFile, QStringLiteral("Ejemplos"))};
}

QString Paragraph(const QString &text) {
    return QStringLiteral("<p>") + text.toHtmlEscaped() + QStringLiteral("</p>\n");
}

QString Heading(const QString &text) {
    return QStringLiteral("<h2>") + text.toHtmlEscaped() + QStringLiteral("</h2>\n");
}

QHash<QString, const ReferenceWord *> WordsByName(const Reference &reference) {
    QHash<QString, const ReferenceWord *> words;
    for (const ReferenceWord &word : reference.Words)
        words[word.Name] = &word;
    return words;
}

QString WordTableOf(const Reference &reference, const Theme &theme) {
    const auto words = WordsByName(reference);
    QString table =
        TableStart + QStringLiteral("<tr><th width=\"20%\">Palabra</th><th width=\"40%\">Se escribe"
                                    "</th><th width=\"40%\">Qué hace</th></tr>\n");
    for (const QString &name : theme.Words) {
        const ReferenceWord *word = words.value(name);
        table += QStringLiteral("<tr><td class=\"clave\"><a name=\"%1\"></a>%1</td><td><code>")
                     .arg(name.toHtmlEscaped()) +
                 word->Signature.toHtmlEscaped() + QStringLiteral("</code></td><td>") +
                 word->Description.toHtmlEscaped() + QStringLiteral("</td></tr>\n");
    }
    return table + TableEnd;
}

QString SamplesOf(const Theme &theme) {
    if (theme.Samples.empty())
        return {};
    QString text = Heading(QStringLiteral("En pocas líneas"));
    for (const CodeSample &sample : theme.Samples)
        text += Paragraph(sample.Caption) + CodeBox(sample.Lines);
    return text;
}

/// Empty when no example belongs to the theme.
QString ExampleListOf(const Reference &reference, const Theme &theme) {
    QString items;
    for (const ExampleProgram &example : reference.Examples)
        if (std::ranges::any_of(example.Themes,
                                [&](const QString &key) { return IsCalled(theme, key); }))
            items += QStringLiteral("<li>") +
                     Link(QStringLiteral("../Ejemplos/") + example.File, example.Title) +
                     QStringLiteral("<br>") + example.Sentence.toHtmlEscaped() +
                     QStringLiteral("</li>\n");
    return items.isEmpty() ? items : QStringLiteral("<ul>\n") + items + QStringLiteral("</ul>\n");
}

/// The first words of a theme, for the index.
QString SomeWordsOf(const Theme &theme) {
    constexpr qsizetype Shown = 6;
    QString text = theme.Words.mid(0, Shown).join(QStringLiteral(", ")).toHtmlEscaped();
    return theme.Words.size() > Shown ? text + QStringLiteral("...") : text;
}

struct WordPlace {
    QString Word;
    const Theme *Page;
};

std::vector<WordPlace> PlacesInAlphabet(const Reference &reference) {
    std::vector<WordPlace> places;
    for (const Theme &theme : reference.Themes)
        for (const QString &word : theme.Words)
            places.push_back({word, &theme});
    std::ranges::sort(places, [](const WordPlace &one, const WordPlace &other) {
        return one.Word.compare(other.Word, Qt::CaseInsensitive) < 0;
    });
    return places;
}

QString LettersOf(const std::vector<WordPlace> &places) {
    QStringList letters;
    for (const WordPlace &place : places)
        if (const QString letter = place.Word.left(1).toUpper(); !letters.contains(letter))
            letters += letter;
    for (QString &letter : letters)
        letter = Link(u'#' + letter, letter);
    return QStringLiteral("<p>") + letters.join(u' ') + QStringLiteral("</p>\n");
}

} // namespace

QString FileOf(const Theme &theme) { return theme.Key.toLower() + QStringLiteral(".htm"); }

ReferencePage ThemeIndexPage(const Reference &reference) {
    QString body =
        Paragraph(QStringLiteral("Las %1 palabras del lenguaje, ordenadas por temas. La misma "
                                 "explicación aparece en la barra de estado cuando el cursor está "
                                 "sobre una palabra.")
                      .arg(reference.Words.size()));
    QString group;
    for (const Theme &theme : reference.Themes) {
        if (theme.Group != group)
            body += (group.isEmpty() ? QString() : TableEnd) + Heading(theme.Group) + TableStart;
        group = theme.Group;
        body += QStringLiteral("<tr><td class=\"clave\" width=\"34%\">") +
                Link(FileOf(theme), theme.Title) + QStringLiteral("</td><td>") +
                SomeWordsOf(theme) + QStringLiteral("</td></tr>\n");
    }
    body += group.isEmpty() ? QString() : TableEnd;
    return {IndexFile, PageOf(QStringLiteral("Referencia del lenguaje"), CommonLinks(), body)};
}

ReferencePage ThemePage(const Reference &reference, std::size_t position) {
    const Theme &theme = reference.Themes[position];
    QStringList links = CommonLinks();
    if (position > 0)
        links += QStringLiteral("Anterior: ") +
                 Link(FileOf(reference.Themes[position - 1]), reference.Themes[position - 1].Title);
    if (position + 1 < reference.Themes.size())
        links += QStringLiteral("Siguiente: ") +
                 Link(FileOf(reference.Themes[position + 1]), reference.Themes[position + 1].Title);
    QString body = Paragraph(theme.Introduction) + WordTableOf(reference, theme) + SamplesOf(theme);
    const QString examples = ExampleListOf(reference, theme);
    if (!examples.isEmpty())
        body += Heading(QStringLiteral("Programas de ejemplo")) + examples;
    return {FileOf(theme), PageOf(theme.Title, links, body)};
}

ReferencePage AlphabetPage(const Reference &reference) {
    const auto places = PlacesInAlphabet(reference);
    QString body = LettersOf(places);
    QString letter;
    QStringList words;
    const auto closeLetter = [&] {
        if (!words.isEmpty())
            body += QStringLiteral("<h2><a name=\"%1\"></a>%1</h2>\n<p>").arg(letter) +
                    words.join(QStringLiteral(" &middot; ")) + QStringLiteral("</p>\n");
        words.clear();
    };
    for (const WordPlace &place : places) {
        if (const QString next = place.Word.left(1).toUpper(); next != letter) {
            closeLetter();
            letter = next;
        }
        words += Link(FileOf(*place.Page) + u'#' + place.Word, place.Word);
    }
    closeLetter();
    return {AlphabetFile, PageOf(QStringLiteral("De la A a la Z"), CommonLinks(), body)};
}

ReferencePage ExamplesPage(const Reference &reference) {
    QString body = Paragraph(QStringLiteral(
        "Programas completos. Un clic en el nombre lo abre en el editor, "
        "listo para cambiarlo; guárdalo con otro nombre si quieres conservar el original."));
    QString lists;
    for (const Theme &theme : reference.Themes)
        if (const QString examples = ExampleListOf(reference, theme); !examples.isEmpty())
            lists += QStringLiteral("<h3>") + Link(FileOf(theme), theme.Title) +
                     QStringLiteral("</h3>\n") + examples;
    if (lists.isEmpty())
        body = Paragraph(QStringLiteral("No hay programas de ejemplo en esta instalación."));
    return {ExamplesFile,
            PageOf(QStringLiteral("Programas de ejemplo"), CommonLinks(), body + lists)};
}

std::vector<ReferencePage> MakePages(const Reference &reference) {
    std::vector<ReferencePage> pages = {AlphabetPage(reference), ExamplesPage(reference)};
    for (std::size_t theme = 0; theme < reference.Themes.size(); ++theme)
        pages.push_back(ThemePage(reference, theme));
    pages.push_back(ThemeIndexPage(reference));
    return pages;
}

} // namespace Quillbox
