// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/SaveFile.h"

namespace Quillbox {

/// What a system's error number means to somebody who wanted to read a file.
FileError ReadFailure(int code);
/// What a system's error number means to somebody who wanted to write a file.
FileError WriteFailure(int code);

} // namespace Quillbox
