// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPoint>
#include <QSize>

namespace Quillbox {

/// The picture window as its rules see it; lengths are pixels.
class ImagePreviewWindow {
  public:
    virtual ~ImagePreviewWindow() = default;

    virtual void ShowStatusBar(bool shown) = 0;
    virtual void PlacePicture(QPoint topLeft) = 0;
    /// As it is shown.
    virtual QSize PictureSize() const = 0;
    /// Of the screen, as the system scales it.
    virtual int DotsPerInch() const = 0;
    /// Sizes the window with its frame; it never becomes too small for its picture.
    virtual void SetSize(QSize withFrame) = 0;
    virtual void Unload() = 0;
};

} // namespace Quillbox
