// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "media/Raster.h"

namespace Quillbox {

/// Reads the bytes of a .pcx file: 256 colours with a palette, or 24 bits of colour. Qt
/// reads none of them.
Raster ReadPcx(QByteArrayView bytes);

} // namespace Quillbox
