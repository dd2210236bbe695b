// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace Quillbox {

/// The folder of the running executable, without a separator at its end except for a root.
QString ProgramFolder();

} // namespace Quillbox
