// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/Version.h"

#include <QString>

namespace Quillbox {

/// Program, version, makers and year, as people read them.
inline const QString CreditLine =
    QStringLiteral("Quillbox v" QUILLBOX_VERSION " · El equipo de Quillbox · 2026");

} // namespace Quillbox
