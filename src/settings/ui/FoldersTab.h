// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

class QLineEdit;
class QPushButton;

namespace Quillbox {

/// The tab "Directorios" of frmSettings.
class FoldersTab final : public QWidget {
    Q_OBJECT
  public:
    FoldersTab();

    QLineEdit *txtCompilerPath;
    QPushButton *cmdCompilerBrowse;
    QLineEdit *txtHelpPath;
    QPushButton *cmdHelpBrowse;
};

} // namespace Quillbox
