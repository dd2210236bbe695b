// SPDX-License-Identifier: GPL-3.0-or-later
// A file's name in the first line and the file's bytes behind it become a page. What is no page is
// shown as it stands, a name brings no markup of its own in, and no letters stay in pixels.
#include "Fuzz.h"

#include "base/AnsiText.h"
#include "help/HelpPages.h"

using namespace Quillbox;

namespace {

QString Plain(QString escaped) {
    return escaped.replace(QStringLiteral("&lt;"), QStringLiteral("<"))
        .replace(QStringLiteral("&gt;"), QStringLiteral(">"))
        .replace(QStringLiteral("&quot;"), QStringLiteral("\""))
        .replace(QStringLiteral("&amp;"), QStringLiteral("&"));
}

void CheckName(const QString &path) {
    const QString known = path.isEmpty() ? QString() : QStringLiteral("x");
    Require(MissingPage(path).count(u'<') == MissingPage(known).count(u'<'));
}

/// A file named so is a page only when it begins as one.
void CheckTextFile(const QByteArray &bytes) {
    static const QString Start = QStringLiteral("<pre>");
    static const QString End = QStringLiteral("</pre>");
    const QString page = PageOf(QStringLiteral("juego.bb"), bytes);
    if (page.startsWith(Start) && page.endsWith(End) && !bytes.toLower().contains("<html"))
        Require(Plain(page.mid(Start.size(), page.size() - Start.size() - End.size())) ==
                DecodePage(bytes));
}

void CheckStyles(const QString &styles) {
    const QString once = WithSizesInPoints(styles);
    Require(WithSizesInPoints(once) == once);
    Require(once.count(u'\n') == styles.count(u'\n'));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    QByteArray bytes = BytesOf(data, size);
    const QString path = FromAnsi(TakeLine(bytes));
    CheckName(path);
    CheckTextFile(bytes);
    CheckStyles(DecodePage(bytes));
    Require(!PageOf(path, bytes).isNull());
    return 0;
}
