// SPDX-License-Identifier: GPL-3.0-or-later
#include "search/ui/FindMessages.h"

#include <QLocale>

namespace Quillbox {

namespace {

constexpr qsizetype LongestShownTerm = 60;

QString NotFound(const FindTask &task) {
    const QString &term = task.Request.Term;
    const QString shown =
        term.size() <= LongestShownTerm ? term : term.left(LongestShownTerm) + u'…';
    return (task.Scope ? QStringLiteral("No se encuentra «%1» en la selección.")
                       : QStringLiteral("No se encuentra «%1»."))
        .arg(shown);
}

} // namespace

QString MessageOf(const FindOutcome &outcome, const FindTask &task, FindDirection direction) {
    const bool forward = direction == FindDirection::Forward;
    if (!outcome.Problem.isEmpty())
        return outcome.Problem;
    if (!outcome.Match && task.Wrap)
        return NotFound(task);
    if (!outcome.Match)
        return forward ? QStringLiteral("No hay más coincidencias hasta el final.")
                       : QStringLiteral("No hay más coincidencias hasta el principio.");
    QStringList parts;
    if (outcome.Wrapped)
        parts += forward ? QStringLiteral("Se llegó al final; se sigue desde el principio.")
                         : QStringLiteral("Se llegó al principio; se sigue desde el final.");
    if (outcome.Match->Start == outcome.Match->End)
        parts += QStringLiteral("La coincidencia no tiene texto.");
    return parts.join(u' ');
}

QString MessageOf(const Replaced &replaced, const FindTask &task) {
    const bool isLast =
        replaced.Selection && replaced.Next.Problem.isEmpty() && !replaced.Next.Match;
    return isLast ? QStringLiteral("No quedan más coincidencias.")
                  : MessageOf(replaced.Next, task, FindDirection::Forward);
}

QString MessageOf(const ReplacedAll &replaced, const FindTask &task) {
    if (!replaced.Problem.isEmpty())
        return replaced.Problem;
    if (replaced.Count == 0)
        return NotFound(task);
    if (replaced.Count == 1)
        return QStringLiteral("Se ha reemplazado 1 coincidencia.");
    const QLocale spanish(QLocale::Spanish, QLocale::Spain);
    return QStringLiteral("Se han reemplazado %1 coincidencias.")
        .arg(spanish.toString(static_cast<qulonglong>(replaced.Count)));
}

} // namespace Quillbox
