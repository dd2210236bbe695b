// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace Quillbox {

class Dialogs;
class Files;
class Programs;

/// The programs beside Quillbox. They are started and not waited for.
class ExternalTools {
  public:
    ExternalTools(const QString &appDir, Programs &launcher, Files &files, Dialogs &dialogs);

    /// Minimised; a system without a calculator is a run-time error.
    void mnuHerramientas_Calculadora_Click();
    /// Warns when the generator is not in its place. The New Project dialog's button does the same.
    void mnuHerramientas_ScaffolderGenerator_Click();
    /// Hands the index page to the system's own viewer, maximised.
    void mnuAyuda_Inkwell_Click();

  private:
    QString AppDir_;
    Programs &Launcher_;
    Files &Files_;
    Dialogs &Dialogs_;
};

} // namespace Quillbox
