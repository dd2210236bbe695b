// SPDX-License-Identifier: GPL-3.0-or-later
#include "media/ui/frmMuestraImagenes.h"

#include "widgets/EventBoundary.h"

#include <QGuiApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QScreen>
#include <QStatusBar>
#include <QWindow>

namespace Quillbox {
namespace {

/// How much of the screen a picture may take.
constexpr double ScreenShare = 0.85;
constexpr int SquareSize = 8;
constexpr QColor LightSquare(255, 255, 255);
constexpr QColor DarkSquare(214, 214, 214);

/// What is transparent shows a chequered ground.
QPixmap OnSquares(const QImage &image) {
    if (!image.hasAlphaChannel())
        return QPixmap::fromImage(image);
    QPixmap ground(image.size());
    QPainter painter(&ground);
    for (int y = 0; y < image.height(); y += SquareSize)
        for (int x = 0; x < image.width(); x += SquareSize)
            painter.fillRect(x, y, SquareSize, SquareSize,
                             (x + y) / SquareSize % 2 == 0 ? LightSquare : DarkSquare);
    painter.drawImage(0, 0, image);
    return ground;
}

/// `shown` is in the units of a screen with this ratio of pixels; squares of an enlarged picture
/// stay squares.
QPixmap PixmapOf(const QImage &image, QSize shown, double ratio) {
    const bool shrunk = shown.width() < image.width() || shown.height() < image.height();
    const QSize pixels = shrunk ? shown * ratio : shown;
    QPixmap pixmap =
        OnSquares(pixels == image.size()
                      ? image
                      : image.scaled(pixels, Qt::IgnoreAspectRatio,
                                     shrunk ? Qt::SmoothTransformation : Qt::FastTransformation));
    pixmap.setDevicePixelRatio(shrunk ? ratio : 1);
    return pixmap;
}

} // namespace

frmMuestraImagenes::frmMuestraImagenes(const NamedPicture &picture, MainWindow &mainWindow,
                                       const EventBoundary &boundary, QWidget *owner)
    : QWidget(owner, Qt::Dialog)
    , Rules_(*this, mainWindow)
    , Boundary_(boundary)
    , imgMuestra(new QLabel(this))
    , stbStatusBar(new QStatusBar(this)) {
    setObjectName(QStringLiteral("frmMuestraImagenes"));
    imgMuestra->setObjectName(QStringLiteral("imgMuestra"));
    stbStatusBar->setObjectName(QStringLiteral("stbStatusBar"));
    stbStatusBar->setSizeGripEnabled(false);
    setAttribute(Qt::WA_DeleteOnClose);
    setFocusPolicy(Qt::StrongFocus);
    setFocus();
    Run(&ImagePreview::Form_Load);
    ShowPicture(picture);
    connect(qGuiApp, &QGuiApplication::focusWindowChanged, this,
            &frmMuestraImagenes::OnFocusWindowChanged);
}

/// What follows changes the focus and must not be heard any more.
frmMuestraImagenes::~frmMuestraImagenes() { qGuiApp->disconnect(this); }

void frmMuestraImagenes::ShowPicture(const NamedPicture &picture) {
    const QRect screenArea = screen()->availableGeometry();
    const QSize shown = ShownSize(picture.Image.size(), screenArea.size() * ScreenShare);
    imgMuestra->setPixmap(PixmapOf(picture.Image, shown, devicePixelRatioF()));
    imgMuestra->resize(shown);
    setWindowTitle(QStringLiteral("%1 (%2 × %3)")
                       .arg(picture.Name)
                       .arg(picture.Image.width())
                       .arg(picture.Image.height()));
    stbStatusBar->showMessage(windowTitle());
    resize(shown);
    const QPoint center = parentWidget()->frameGeometry().center();
    const QPoint farthest = screenArea.bottomRight() - QPoint(shown.width(), shown.height());
    const QPoint wanted = center - QPoint(shown.width(), shown.height()) / 2;
    move(std::max(screenArea.left(), std::min(wanted.x(), farthest.x())),
         std::max(screenArea.top(), std::min(wanted.y(), farthest.y())));
}

void frmMuestraImagenes::ShowStatusBar(bool shown) { stbStatusBar->setVisible(shown); }

void frmMuestraImagenes::PlacePicture(QPoint topLeft) { imgMuestra->move(topLeft); }

QSize frmMuestraImagenes::PictureSize() const { return imgMuestra->size(); }

int frmMuestraImagenes::DotsPerInch() const { return logicalDpiX(); }

/// Where windows get their size from the system, asking again after every repaint would go on for
/// ever: a size that was refused is not asked for again until the window has become another one.
void frmMuestraImagenes::SetSize(QSize withFrame) {
    const QSize frame = frameGeometry().size() - size();
    const QSize wanted = (withFrame - frame).expandedTo(imgMuestra->size());
    if (wanted == size() || (wanted == SizeAskedFor_ && size() == SizeWhenAsked_))
        return;
    SizeAskedFor_ = wanted;
    SizeWhenAsked_ = size();
    resize(wanted);
}

void frmMuestraImagenes::Unload() { close(); }

void frmMuestraImagenes::focusInEvent(QFocusEvent *event) {
    QWidget::focusInEvent(event);
    Run(&ImagePreview::Form_GotFocus);
}

void frmMuestraImagenes::keyPressEvent(QKeyEvent *event) {
    switch (event->key()) {
    case Qt::Key_Escape:
    case Qt::Key_Space:
    case Qt::Key_Return:
    case Qt::Key_Enter:
        Leave();
        emit LeftForOwner();
        return;
    default:
        QWidget::keyPressEvent(event);
    }
}

/// A window may not change its size while it is being painted.
void frmMuestraImagenes::paintEvent(QPaintEvent *event) {
    QWidget::paintEvent(event);
    QMetaObject::invokeMethod(
        this, [this] { Run(&ImagePreview::Form_Paint); }, Qt::QueuedConnection);
}

void frmMuestraImagenes::resizeEvent(QResizeEvent *event) {
    QWidget::resizeEvent(event);
    const int barHeight = stbStatusBar->sizeHint().height();
    stbStatusBar->setGeometry(0, height() - barHeight, width(), barHeight);
}

/// Without a window of this program the person is in another one, from which nothing must take the
/// keyboard.
void frmMuestraImagenes::OnFocusWindowChanged(const QWindow *now) {
    HadFocus_ = HadFocus_ || (now && now == windowHandle());
    if (!now || now == windowHandle() || !HadFocus_ || Leaving_)
        return;
    const bool isOwner = now == parentWidget()->windowHandle();
    Leave();
    if (isOwner)
        emit LeftForOwner();
}

void frmMuestraImagenes::Leave() {
    Leaving_ = true;
    Run(&ImagePreview::LostFocus);
}

void frmMuestraImagenes::Run(void (ImagePreview::*step)()) {
    Boundary_.Run([this, step] { (Rules_.*step)(); });
}

} // namespace Quillbox
