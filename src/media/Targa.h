// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "media/Raster.h"

namespace Quillbox {

/// Reads the bytes of a .tga file: colour, grey or with a palette, plain or run-length coded. Qt
/// reads none of them.
Raster ReadTarga(QByteArrayView bytes);

} // namespace Quillbox
