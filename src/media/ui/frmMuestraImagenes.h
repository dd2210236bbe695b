// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "media/ImagePreview.h"
#include "media/ImagePreviewWindow.h"

#include <QImage>
#include <QWidget>

class QLabel;
class QStatusBar;
class QWindow;

namespace Quillbox {

class EventBoundary;

struct NamedPicture {
    QImage Image;
    QString Name;
};

/// Shows a picture in a window that fits it, as long as the window has the focus; then it deletes
/// itself. Escape, Return and the space bar leave it.
class frmMuestraImagenes final : public QWidget, public ImagePreviewWindow {
    Q_OBJECT
  public:
    frmMuestraImagenes(const NamedPicture &picture, MainWindow &mainWindow,
                       const EventBoundary &boundary, QWidget *owner);
    ~frmMuestraImagenes() override;

    void ShowStatusBar(bool shown) override;
    void PlacePicture(QPoint topLeft) override;
    QSize PictureSize() const override;
    int DotsPerInch() const override;
    void SetSize(QSize withFrame) override;
    void Unload() override;

  signals:
    /// The person goes back to the window from which the picture was opened.
    void LeftForOwner();

  protected:
    void focusInEvent(QFocusEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

  private:
    void ShowPicture(const NamedPicture &picture);
    void OnFocusWindowChanged(const QWindow *now);
    void Leave();
    void Run(void (ImagePreview::*step)());

    ImagePreview Rules_;
    const EventBoundary &Boundary_;
    QLabel *imgMuestra;
    QStatusBar *stbStatusBar;
    QSize SizeAskedFor_;
    QSize SizeWhenAsked_;
    bool HadFocus_ = false;
    bool Leaving_ = false;
};

} // namespace Quillbox
