// SPDX-License-Identifier: GPL-3.0-or-later
#include "help/ui/HelpBrowser.h"

#include "base/Paths.h"
#include "help/HelpPages.h"
#include "help/ui/FindBar.h"
#include "help/ui/LinkFocusStyle.h"
#include "help/ui/PageImages.h"
#include "platform/SystemFiles.h"
#include "widgets/Controls.h"

#include <QAbstractTextDocumentLayout>
#include <QDir>
#include <QFileInfo>
#include <QScrollBar>

#include <algorithm>
#include <iterator>

namespace Quillbox {
namespace {

constexpr double ZoomFactors[] = {0.5, 0.67, 0.8, 0.9, 1, 1.1, 1.25, 1.5, 1.75, 2, 2.5, 3};

/// A folder stands for its index page. On disks that come from Windows a name may differ in letter
/// case from the link, or one of the two may end in a blank.
QString PagePath(const QString &path) {
    const QString folderPage = path + QStringLiteral("/index.htm");
    for (const QString &name : {path, path.trimmed(), path + u' ', folderPage, folderPage + u'l'})
        if (const QString found = SystemPath(name); QFileInfo(found).isFile())
            return found;
    return {};
}

} // namespace

HelpBrowser::HelpBrowser(QWidget *parent)
    : QTextBrowser(parent)
    , BeforeNavigate([](const QString &) { return NavigationAnswer::Proceed; })
    , Device_(*viewport())
    , Images_(new PageImages(this))
    , FindBar_(new FindBar(*this)) {
    setFrameShape(QFrame::NoFrame);
    setAccessibleName(QStringLiteral("Página de ayuda"));
    QAbstractTextDocumentLayout &layout = *document()->documentLayout();
    layout.setPaintDevice(&Device_);
    layout.registerHandler(QTextFormat::ImageObject, Images_);
    auto *style = new LinkFocusStyle;
    style->setParent(this);
    setStyle(style);
    FindBar_->hide();
    connect(FindBar_, &FindBar::VisibilityChanged, this, &HelpBrowser::PlaceFindBar);
    // What was found stays marked while the keyboard is in the bar.
    ShowSelectionAsActive(*this);
}

/// The document outlives the device that it was laid out for.
HelpBrowser::~HelpBrowser() { document()->documentLayout()->setPaintDevice(viewport()); }

void HelpBrowser::Navigate(const QString &page) {
    const QUrl address(page);
    const bool isAddress = address.scheme().size() > 1; // one letter is a drive
    const QString path = SystemPath(page);
    setSource(isAddress ? address
                        : QUrl::fromLocalFile(path.isEmpty() ? QStringLiteral("/") : path));
}

QVariant HelpBrowser::loadResource(int type, const QUrl &name) {
    if (type == QTextDocument::HtmlResource)
        return LoadPage(name);
    const QUrl url = Repaired(source().resolved(name));
    if (!url.isLocalFile() || url.host() != source().host())
        return {};
    const auto bytes = SystemFiles().Read(PagePath(url.toLocalFile()));
    if (!bytes)
        return {};
    if (type == QTextDocument::ImageResource)
        return ReadPicture(*bytes, devicePixelRatioF());
    return WithSizesInPoints(DecodePage(*bytes));
}

QVariant HelpBrowser::LoadPage(const QUrl &url) const {
    const QString path = url.toLocalFile();
    const QString found = PagePath(path);
    if (const auto bytes = SystemFiles().Read(found))
        return PageOf(found, *bytes);
    return MissingPage(path == u"/" ? QString() : QDir::toNativeSeparators(path));
}

/// Pages made on Windows write "\" in their links. Only the link is repaired: the page's own folder
/// may have a name with "\" in it.
QUrl HelpBrowser::Repaired(QUrl url) const {
    const QString folder = source().adjusted(QUrl::RemoveFilename).path();
    const QString path = url.path();
    const qsizetype known = path.startsWith(folder) ? folder.size() : 0;
    if (!url.isLocalFile() || path.indexOf(u'\\', known) < 0)
        return url;
    url.setPath(path.left(known) + path.mid(known).replace(u'\\', u'/'));
    return url.adjusted(QUrl::NormalizePathSegments);
}

void HelpBrowser::doSetSource(const QUrl &url, QTextDocument::ResourceType) {
    const QUrl target = Repaired(source().resolved(url));
    if (BeforeNavigate(target.toString(QUrl::FullyEncoded)) == NavigationAnswer::Proceed)
        QTextBrowser::doSetSource(target, QTextDocument::HtmlResource);
}

void HelpBrowser::ShowFindBar() { FindBar_->Open(); }

void HelpBrowser::FindNext() {
    if (FindBar_->HasTerm())
        return FindBar_->FindNext();
    ShowFindBar();
}

void HelpBrowser::FindPrevious() {
    if (FindBar_->HasTerm())
        return FindBar_->FindPrevious();
    ShowFindBar();
}

/// The bar stands below the page and above the horizontal scroll bar; what it covers moves up.
void HelpBrowser::PlaceFindBar() {
    const bool shown = !FindBar_->isHidden();
    const int height = shown ? FindBar_->sizeHint().height() : 0;
    setViewportMargins(0, 0, 0, height);
    if (shown)
        FindBar_->setGeometry(0, viewport()->geometry().bottom() + 1, viewport()->width(), height);
}

void HelpBrowser::ZoomStep(int steps) {
    const auto *next = std::ranges::lower_bound(ZoomFactors, Zoom());
    const auto place = next - std::begin(ZoomFactors) + steps;
    SetZoom(ZoomFactors[qBound<std::ptrdiff_t>(0, place, std::ssize(ZoomFactors) - 1)]);
}

void HelpBrowser::ZoomReset() { SetZoom(1); }

/// The part of the page that is in view stays there.
void HelpBrowser::SetZoom(double factor) {
    QScrollBar &bar = *verticalScrollBar();
    const double place = bar.maximum() > 0 ? bar.value() * 1.0 / bar.maximum() : 0;
    Device_.Factor = factor;
    Images_->Zoom = factor;
    document()->markContentsDirty(0, document()->characterCount());
    bar.setValue(qRound(place * bar.maximum()));
}

} // namespace Quillbox
