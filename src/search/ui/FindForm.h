// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vector>

class QCheckBox;
class QDialog;
class QLabel;
class QPushButton;

namespace Quillbox {

class HistoryBox;

/// What the find dialog shows, in the order of the Tab key.
struct FindForm {
    HistoryBox *Term;
    HistoryBox *Replacement;
    QCheckBox *MatchCase;
    QCheckBox *WholeWord;
    QCheckBox *IsExpression;
    QCheckBox *InSelection;
    QCheckBox *Wrap;
    QPushButton *Next; ///< Enter presses it
    QPushButton *Previous;
    QPushButton *Replace;
    QPushButton *ReplaceAll;
    QPushButton *Close;
    QLabel *Result; ///< what came of the last action
    QLabel *Count;  ///< how many matches there are

    /// Those that need a term.
    std::vector<QPushButton *> Actions() const { return {Next, Previous, Replace, ReplaceAll}; }
};

FindForm BuildFindForm(QDialog &dialog);

} // namespace Quillbox
