// SPDX-License-Identifier: GPL-3.0-or-later
#include "search/ui/FindMessages.h"

#include <QCoreApplication>
#include <QLocale>

namespace Quillbox {

namespace {

constexpr qsizetype LongestShownTerm = 60;

QString Translated(const char *text) {
    return QCoreApplication::translate("Quillbox::FindMessages", text);
}

QString NotFound(const FindTask &task) {
    const QString &term = task.Request.Term;
    const QString shown =
        term.size() <= LongestShownTerm ? term : term.left(LongestShownTerm) + u'…';
    return (task.Scope ? Translated("No se encuentra «%1» en la selección.")
                       : Translated("No se encuentra «%1»."))
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
        return forward ? Translated("No hay más coincidencias hasta el final.")
                       : Translated("No hay más coincidencias hasta el principio.");
    QStringList parts;
    if (outcome.Wrapped)
        parts += forward ? Translated("Se llegó al final; se sigue desde el principio.")
                         : Translated("Se llegó al principio; se sigue desde el final.");
    if (outcome.Match->Start == outcome.Match->End)
        parts += Translated("La coincidencia no tiene texto.");
    return parts.join(u' ');
}

QString MessageOf(const Replaced &replaced, const FindTask &task) {
    const bool isLast =
        replaced.Selection && replaced.Next.Problem.isEmpty() && !replaced.Next.Match;
    return isLast ? Translated("No quedan más coincidencias.")
                  : MessageOf(replaced.Next, task, FindDirection::Forward);
}

QString MessageOf(const ReplacedAll &replaced, const FindTask &task) {
    if (!replaced.Problem.isEmpty())
        return replaced.Problem;
    if (replaced.Count == 0)
        return NotFound(task);
    if (replaced.Count == 1)
        return Translated("Se ha reemplazado 1 coincidencia.");
    const QLocale spanish(QLocale::Spanish, QLocale::Spain);
    return Translated("Se han reemplazado %1 coincidencias.")
        .arg(spanish.toString(static_cast<qulonglong>(replaced.Count)));
}

} // namespace Quillbox
