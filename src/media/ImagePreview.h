// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QSize>

namespace Quillbox {

class ImagePreviewWindow;
class MainWindow;

/// The size at which a picture is shown: as it is, smaller when `room` does not hold it, several
/// times as large when it is so small that nothing could be made out.
QSize ShownSize(QSize picture, QSize room);

/// What the picture window frmMuestraImagenes decides. It lives only while it has the focus.
class ImagePreview {
  public:
    /// `window` is used from the first call on, not before.
    ImagePreview(ImagePreviewWindow &window, MainWindow &mainWindow);

    void Form_Load();
    /// The window fits its picture and hides its status bar.
    void Form_Paint();
    void Form_GotFocus();
    /// The window or its picture has lost the focus.
    void LostFocus();

  private:
    ImagePreviewWindow &Window_;
    MainWindow &MainWindow_;
};

} // namespace Quillbox
