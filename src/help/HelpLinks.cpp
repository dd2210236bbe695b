// SPDX-License-Identifier: GPL-3.0-or-later
#include "help/HelpLinks.h"

#include "base/Paths.h"
#include "documents/DocumentCommands.h"
#include "language/SymbolScanner.h"
#include "state/DocumentRegistry.h"
#include "state/Language.h"
#include "surfaces/DocumentWindow.h"
#include "surfaces/EditorControl.h"
#include "surfaces/HelpViewer.h"
#include "surfaces/Programs.h"

#include <QUrl>

#include <algorithm>
#include <iterator>

namespace Quillbox {
namespace {

const QString OutsideSchemes[] = {QStringLiteral("http"), QStringLiteral("https"),
                                  QStringLiteral("mailto"), QStringLiteral("ftp")};

bool GoesOutside(const QString &scheme) {
    return std::ranges::find(OutsideSchemes, scheme) != std::end(OutsideSchemes);
}

bool IsSameFile(const QString &path, const QString &other) {
    return SystemPath(path).compare(SystemPath(other), Qt::CaseInsensitive) == 0;
}

/// "/C:/juegos/a.bb" is how an address writes a drive.
bool BeginsWithDrive(const QString &path) {
    return path.size() > 2 && path[0] == u'/' && path[1].isLetter() && path[2] == u':';
}

} // namespace

HelpLinks::HelpLinks(DocumentRegistry &registry, DocumentCommands &documents,
                     SymbolScanner &scanner, Programs &programs)
    : Registry_(registry)
    , Documents_(documents)
    , Scanner_(scanner)
    , Programs_(programs) {}

NavigationAnswer HelpLinks::htmlAyuda_BeforeNavigate(const QString &url) {
    if (url.endsWith(SourceLanguage.ExampleSuffix)) {
        OpenSource(LocalPathOf(url));
        return NavigationAnswer::Cancel;
    }
    const QUrl address(url);
    if (GoesOutside(address.scheme())) {
        Programs_.OpenAddress(url);
        return NavigationAnswer::Cancel;
    }
    return address.isLocalFile() ? NavigationAnswer::Proceed : NavigationAnswer::Cancel;
}

/// A source that cannot be opened leaves the help page, or another document, the current one.
void HelpLinks::OpenSource(const QString &path) {
    Documents_.OpenDocument(path);
    if (Registry_.CurrentIndex > 0 && IsSameFile(Registry_.Current().Window->Caption(), path))
        LoadAgain();
}

/// A followed link always shows the source as it is on disk: what a person tried out in the example
/// is gone when its link is clicked again. Nothing happens while a scan is pending.
void HelpLinks::LoadAgain() {
    Document &document = Registry_.Current();
    if (document.Scanning)
        return;
    document.Scanning = true;
    Scanner_.ScanSymbols();
    if (Registry_.CurrentIndex == 0) // the person went back to the help page during the scan
        return;
    DocumentWindow &active = *Registry_.Current().Window;
    active.Editor().OpenFile(active.Caption());
}

QString LocalPathOf(const QString &url) {
    const QUrl address(url);
    if (!address.isLocalFile())
        return url;
    QString path = address.toLocalFile();
    if (BeginsWithDrive(path))
        path.remove(0, 1);
    return path.replace(u'/', PathSeparator);
}

} // namespace Quillbox
