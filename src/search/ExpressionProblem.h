// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace Quillbox {

/// The sentence that tells what is wrong with a regular expression and where. `reason` is what the
/// engine says, in the Spanish of "quillbox_es"; `offset` the place in characters, 0-based.
QString ExpressionProblem(const QString &reason, qsizetype offset);

} // namespace Quillbox
