// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPointer>
#include <QString>

#include <Qsci/qsciscintillabase.h>

namespace Quillbox {

class FindDialog;

struct FindRequest {
    QString Term;
    bool MatchCase = false;
    bool WholeWord = false;
};

enum class FindDirection { Forward, Backward };

/// What all editors share about finding: one dialog, the last request, the editor it works on.
struct FindState {
    FindRequest Request;
    QString Replacement;
    QPointer<QsciScintillaBase> Editor; ///< the one that had the keyboard last
    QPointer<FindDialog> Dialog;
};

/// Selects the next match behind (or before) the selection, going on at the other end of the text.
/// False when there is none; then the selection stays.
bool SelectMatch(QsciScintillaBase &editor, const FindRequest &request, FindDirection direction);

struct Replaced {
    bool Selection; ///< the selection was a match
    bool FoundNext;
};

/// Replaces the selection when it is a match; then selects the next match.
Replaced ReplaceMatch(QsciScintillaBase &editor, const FindRequest &request,
                      const QString &replacement);

/// Replaces every match in the text as one undo step; returns their number.
int ReplaceAllMatches(QsciScintillaBase &editor, const FindRequest &request,
                      const QString &replacement);

} // namespace Quillbox
