// SPDX-License-Identifier: GPL-3.0-or-later
#include "reference/Html.h"

namespace Quillbox {

QString Link(const QString &address, const QString &text) {
    return QStringLiteral("<a href=\"%1\">%2</a>").arg(address, text.toHtmlEscaped());
}

QString PageOf(const QString &title, const QStringList &navigation, const QString &body) {
    const auto bar = [&](const QString &place) {
        return QStringLiteral("<table%1 width=\"100%\" border=\"0\" cellspacing=\"0\" "
                              "cellpadding=\"6\"><tr><td class=\"navegacion\">")
                   .arg(place) +
               navigation.join(QStringLiteral(" &middot; ")) +
               QStringLiteral("</td></tr></table>\n");
    };
    const QString heading = title.toHtmlEscaped();
    return QStringLiteral("<!DOCTYPE html>\n<html lang=\"es\">\n<head>\n"
                          "<meta charset=\"utf-8\">\n<title>") +
           heading +
           QStringLiteral("</title>\n"
                          "<link rel=\"stylesheet\" type=\"text/css\" href=\"../estilo.css\">\n"
                          "</head>\n<body>\n") +
           bar({}) + QStringLiteral("<h1>") + heading + QStringLiteral("</h1>\n") + body +
           bar(QStringLiteral(" class=\"final\"")) + QStringLiteral("</body>\n</html>\n");
}

QString CodeBox(const QStringList &lines) {
    return QStringLiteral("<table width=\"100%\" border=\"0\" cellspacing=\"0\" "
                          "cellpadding=\"8\"><tr><td class=\"codigo\"><pre>") +
           lines.join(u'\n').toHtmlEscaped() + QStringLiteral("</pre></td></tr></table>\n");
}

} // namespace Quillbox
