// SPDX-License-Identifier: GPL-3.0-or-later
#include "media/ImagePreview.h"

#include "media/ImagePreviewWindow.h"
#include "surfaces/MainWindow.h"

#include <algorithm>

namespace Quillbox {
namespace {

/// What the frame, with the title bar, takes of the window's size in twips, 1/1440 inch.
constexpr QSize FrameTwips(115, 400);

QSize FrameAllowance(int dotsPerInch) {
    constexpr int twipsPerInch = 1440;
    return (FrameTwips.toSizeF() * dotsPerInch / twipsPerInch).toSize();
}

/// A picture that is smaller than this in both directions is enlarged.
constexpr int SmallestSide = 64;
constexpr int LargestFactor = 16;

} // namespace

QSize ShownSize(QSize picture, QSize room) {
    const int side = std::max({picture.width(), picture.height(), 1});
    if (side < SmallestSide)
        return picture * std::min(2 * SmallestSide / side, LargestFactor);
    if (picture.width() <= room.width() && picture.height() <= room.height())
        return picture;
    return picture.scaled(room, Qt::KeepAspectRatio).expandedTo(QSize(1, 1));
}

ImagePreview::ImagePreview(ImagePreviewWindow &window, MainWindow &mainWindow)
    : Window_(window)
    , MainWindow_(mainWindow) {}

void ImagePreview::Form_Load() {
    Window_.ShowStatusBar(true);
    Window_.PlacePicture(QPoint(0, 0));
}

void ImagePreview::Form_Paint() {
    Window_.ShowStatusBar(false);
    Window_.SetSize(Window_.PictureSize() + FrameAllowance(Window_.DotsPerInch()));
}

void ImagePreview::Form_GotFocus() { Form_Paint(); }

void ImagePreview::LostFocus() {
    MainWindow_.Activate();
    Window_.Unload();
}

} // namespace Quillbox
