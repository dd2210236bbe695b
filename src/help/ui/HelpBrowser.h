// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "help/ui/ZoomedDevice.h"
#include "surfaces/HelpViewer.h"
#include "widgets/WheelNotches.h"

#include <QTextBrowser>

namespace Quillbox {

class FindBar;
class PageImages;

/// The browser of the help pages. Pages, style sheets and pictures come from files only; nothing is
/// fetched from a network and no script runs. A page that is not there is shown as one that says so
/// and is part of the history like any other.
class HelpBrowser final : public QTextBrowser {
    Q_OBJECT
  public:
    explicit HelpBrowser(QWidget *parent = nullptr);
    ~HelpBrowser() override;

    /// Asked with the whole, percent-encoded address before a page is shown; back and forward never
    /// ask.
    std::function<NavigationAnswer(const QString &url)> BeforeNavigate;

    /// A path as stored or typed, or a web address.
    void Navigate(const QString &page);
    double Zoom() const { return Device_.Factor; }
    QVariant loadResource(int type, const QUrl &url) override;

  protected:
    bool event(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void doSetSource(const QUrl &url, QTextDocument::ResourceType type) override;

  private:
    struct PageKey;
    static const PageKey *FindPageKey(const QKeyEvent &event);
    QUrl Repaired(QUrl url) const;
    QVariant LoadPage(const QUrl &url) const;
    void ShowFindBar();
    void FindNext();
    void FindPrevious();
    void ZoomStep(int steps);
    void ZoomLarger() { ZoomStep(1); }
    void ZoomSmaller() { ZoomStep(-1); }
    void ZoomReset();
    void SetZoom(double factor);
    void PlaceFindBar();

    ZoomedDevice Device_;
    WheelNotches Notches_;
    PageImages *Images_;
    FindBar *FindBar_;
};

} // namespace Quillbox
