// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

class QCheckBox;

namespace Quillbox {

/// The tab "Contexto" of frmSettings.
class ContextTab final : public QWidget {
    Q_OBJECT
  public:
    ContextTab();

    QCheckBox *chkQuickHelp;
    QCheckBox *chkFunciones;
    QCheckBox *chkLabels;
    QCheckBox *chkTypes;
};

} // namespace Quillbox
