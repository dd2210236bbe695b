// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace Quillbox {

/// What is wrong with a regular expression and where, in Spanish. `message` is what the engine
/// says, `offset` the place in characters, 0-based.
QString ExpressionProblem(const QString &message, qsizetype offset);

} // namespace Quillbox
