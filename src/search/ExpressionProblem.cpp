// SPDX-License-Identifier: GPL-3.0-or-later
#include "search/ExpressionProblem.h"

namespace Quillbox {

QString ExpressionProblem(const QString &reason, qsizetype offset) {
    return QStringLiteral("Expresión no válida: %1 (posición %2).")
        .arg(reason, QString::number(offset + 1));
}

} // namespace Quillbox
