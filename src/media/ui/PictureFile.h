// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "media/PictureProblem.h"

#include <QImage>

namespace Quillbox {

struct PictureFile {
    PictureProblem Problem = PictureProblem::None;
    QImage Image; ///< null when there is a problem
};

/// Reads a picture by what is in the file; only .tga and .pcx files are known by their name.
PictureFile ReadPictureFile(const QString &path);

} // namespace Quillbox
