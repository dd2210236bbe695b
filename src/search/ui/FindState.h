// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "search/MovingRange.h"
#include "search/TextSearch.h"

#include <QPointer>
#include <QStringList>

#include <Qsci/qsciscintillabase.h>

namespace Quillbox {

class FindDialog;

/// What is looked for in one text, and how far.
struct FindTask {
    FindRequest Request;
    bool Wrap = true;                 ///< goes on at the other end
    std::optional<MovingRange> Scope; ///< where matches count; the whole text without it
};

/// What all editors share about finding: one dialog, the last request, the editor it works on, and
/// what was looked for and put in before.
struct FindState {
    FindRequest Request;
    QString Replacement;
    bool Wrap = true;
    QStringList Terms;                  ///< the last one first
    QStringList Replacements;           ///< the last one first
    QPointer<QsciScintillaBase> Editor; ///< the one that had the keyboard last
    QPointer<FindDialog> Dialog;
};

} // namespace Quillbox
