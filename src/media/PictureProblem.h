// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtGlobal>

namespace Quillbox {

/// Why a picture cannot be shown.
enum class PictureProblem { None, Unreadable, UnknownFormat, Damaged, TooLarge };

/// The most pixels of a picture that is shown: 128 MB of memory at four bytes each. A few damaged
/// bytes in a header could ask for a thousand times as much.
inline constexpr qint64 LargestPicture = qint64{8192} * 4096;

} // namespace Quillbox
