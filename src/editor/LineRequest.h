// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/TextPosition.h"

#include <QStringView>

#include <optional>

namespace Quillbox {

/// Where a person wants to go who types "12" or "12:5": line and column counted from 1. A number
/// outside the text goes to its nearest line; nothing when `text` is no such thing.
std::optional<TextPosition> ReadLineRequest(QStringView text, int lineCount);

} // namespace Quillbox
