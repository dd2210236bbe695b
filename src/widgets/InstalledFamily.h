// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace Quillbox {

/// A family that exists. Source text needs a fixed pitch: a family that is not installed, as
/// "Courier" on many systems, must not end in a proportional one.
QString InstalledFamily(const QString &name);

} // namespace Quillbox
