// SPDX-License-Identifier: GPL-3.0-or-later
#include "help/HelpPages.h"

#include "base/Windows1252Text.h"

#include <QRegularExpression>
#include <QStringDecoder>
#include <QStringList>
#include <QUrl>

#include <functional>

namespace Quillbox {
namespace {

constexpr qsizetype DeclarationReach = 1024; ///< bytes in which a page names its character set

const QStringList PageEndings = {"htm", "html", "xhtml", "shtml", "xml", "css"};
const QStringList PictureEndings = {"png", "jpg", "jpeg", "gif", "bmp", "svg", "ico"};

using Change = std::function<QString(const QRegularExpressionMatch &)>;

/// The text with every match changed.
QString Changed(const QString &text, const QRegularExpression &expression, const Change &change) {
    QString result;
    qsizetype end = 0;
    for (const QRegularExpressionMatch &match : expression.globalMatch(text)) {
        result += text.mid(end, match.capturedStart() - end) + change(match);
        end = match.capturedEnd();
    }
    return result + text.mid(end);
}

/// In lower case; empty without a declaration.
QString DeclaredCharacterSet(const QByteArray &bytes) {
    static const QRegularExpression Declaration(
        QStringLiteral(
            R"re((?:<meta\b[^>]*\bcharset|<\?xml\b[^>]*\bencoding)\s*=\s*["']?\s*([\w-]+))re"),
        QRegularExpression::CaseInsensitiveOption);
    const QString beginning = QString::fromLatin1(bytes.left(DeclarationReach));
    return Declaration.match(beginning).captured(1).toLower();
}

/// For names without an ending or with a foreign one.
bool LooksLikePage(const QString &text) {
    const QString beginning = text.left(DeclarationReach).trimmed().toLower();
    return beginning.startsWith(u"<!doctype html") || beginning.startsWith(u"<html");
}

QString TextPage(const QString &text) {
    return QStringLiteral("<pre>%1</pre>").arg(text.toHtmlEscaped());
}

QString UnreadablePage(const QString &path) {
    return QStringLiteral("<h2>No se puede mostrar el archivo</h2><p>El archivo <b>%1</b> no es "
                          "una página, ni una imagen, ni un texto.</p>")
        .arg(path.toHtmlEscaped());
}

QString AttributeOf(const QString &element, const QString &name) {
    const QRegularExpression expression(
        QStringLiteral(R"re(\b%1\s*=\s*(?:"([^"]*)"|'([^']*)'|([^\s"'>]+)))re").arg(name),
        QRegularExpression::CaseInsensitiveOption);
    const QRegularExpressionMatch match = expression.match(element);
    return match.captured(1) + match.captured(2) + match.captured(3);
}

QString FrameLink(const QString &frame) {
    const QString source = AttributeOf(frame, QStringLiteral("src"));
    if (source.isEmpty())
        return {};
    QString caption = AttributeOf(frame, QStringLiteral("title"));
    if (caption.isEmpty())
        caption = AttributeOf(frame, QStringLiteral("name"));
    if (caption.isEmpty())
        caption = source;
    return QStringLiteral("<li><a href=\"%1\">%2</a></li>").arg(source, caption);
}

/// The viewer knows imported style sheets only: a LINK element hides what follows it from the
/// viewer unless a page writes it exactly as the viewer likes it.
QString WithImportedStyleSheets(const QString &html) {
    static const QRegularExpression Link(QStringLiteral("<link\\b[^>]*\\bstylesheet\\b[^>]*>"),
                                         QRegularExpression::CaseInsensitiveOption);
    return Changed(html, Link, [](const QRegularExpressionMatch &match) {
        return QStringLiteral("<style type=\"text/css\">@import url(\"%1\");</style>")
            .arg(AttributeOf(match.captured(), QStringLiteral("href")));
    });
}

/// Only styles are measured anew: what a page says about them in its text stays as it is.
QString WithStylesInPoints(const QString &html) {
    static const QRegularExpression StyleOrTag(
        QStringLiteral(R"re((<style\b.*?(?:</style|\z))|<[a-z][^>]*>)re"),
        QRegularExpression::CaseInsensitiveOption | QRegularExpression::DotMatchesEverythingOption);
    static const QRegularExpression Attribute(
        QStringLiteral(R"re(\sstyle\s*=\s*(?:"[^"]*"|'[^']*'|[^\s>]+))re"),
        QRegularExpression::CaseInsensitiveOption);
    return Changed(html, StyleOrTag, [](const QRegularExpressionMatch &place) {
        if (place.hasCaptured(1))
            return WithSizesInPoints(place.captured());
        return Changed(place.captured(), Attribute, [](const QRegularExpressionMatch &style) {
            return WithSizesInPoints(style.captured());
        });
    });
}

QString WithoutComments(QString html) {
    static const QRegularExpression Comment(QStringLiteral("<!--.*?-->"),
                                            QRegularExpression::DotMatchesEverythingOption);
    return html.remove(Comment);
}

/// Frames are never shown side by side here. A page that is nothing else would stay empty.
QString FramesAsLinks(const QString &html) {
    static const QRegularExpression Frame(QStringLiteral("<frame\\b[^>]*>"),
                                          QRegularExpression::CaseInsensitiveOption);
    QString links;
    for (const QRegularExpressionMatch &match : Frame.globalMatch(WithoutComments(html)))
        links += FrameLink(match.captured());
    if (links.isEmpty())
        return html;
    return QStringLiteral("<h2>Página con marcos</h2><p>Esta página se compone de varias partes. "
                          "Elige la que quieres ver:</p><ul>%1</ul>")
        .arg(links);
}

} // namespace

QString DecodePage(const QByteArray &bytes) {
    if (const auto marked = QStringConverter::encodingForData(bytes))
        return QStringDecoder(*marked)(bytes);
    const QString declared = DeclaredCharacterSet(bytes);
    const bool mayBeUtf8 = !declared.startsWith(u"windows-12") && !declared.startsWith(u"iso-8859");
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    const QString text = decoder(bytes);
    return mayBeUtf8 && !decoder.hasError() ? text : FromWindows1252(bytes);
}

QString WithSizesInPoints(const QString &styles) {
    static const QRegularExpression Size(
        QStringLiteral(R"re((\bfont-size\s*:\s*)(\d+(?:\.\d+)?)px)re"),
        QRegularExpression::CaseInsensitiveOption);
    constexpr double PointsPerPixel = 0.75;
    return Changed(styles, Size, [](const QRegularExpressionMatch &match) {
        return match.captured(1) + QString::number(match.captured(2).toDouble() * PointsPerPixel) +
               QStringLiteral("pt");
    });
}

QString PageOf(const QString &path, const QByteArray &bytes) {
    const QString ending = path.trimmed().section(u'.', -1).toLower();
    if (PictureEndings.contains(ending))
        return QStringLiteral("<img src=\"%1\">")
            .arg(QUrl::fromLocalFile(path).toString(QUrl::FullyEncoded));
    const QString text = DecodePage(bytes);
    if (PageEndings.contains(ending) || LooksLikePage(text))
        return WithStylesInPoints(WithImportedStyleSheets(FramesAsLinks(text)));
    return text.contains(QChar::Null) ? UnreadablePage(path) : TextPage(text);
}

QString MissingPage(const QString &path) {
    if (path.isEmpty())
        return QStringLiteral("<h2>No hay ninguna página elegida</h2><p>La página de ayuda del "
                              "lenguaje se elige en el menú <b>Herramientas</b>, "
                              "<b>Configuración...</b></p>");
    return QStringLiteral("<h2>No se encuentra la página</h2><p>La página de ayuda <b>%1</b> no "
                          "existe o no se puede leer.</p><p>El botón <b>Atrás</b> de la barra de "
                          "herramientas vuelve a la página anterior.</p>")
        .arg(path.toHtmlEscaped());
}

} // namespace Quillbox
