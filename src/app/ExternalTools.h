// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace Quillbox {

class CompanionPrograms;
class Programs;

/// The programs that the menus start. They are not waited for.
class ExternalTools {
  public:
    ExternalTools(CompanionPrograms &companions, Programs &programs);

    /// Minimised; a system without a calculator is a run-time error.
    void mnuHerramientas_Calculadora_Click();
    /// Warns when the generator is not in its place. The New Project dialog's button does the same.
    void mnuHerramientas_ScaffolderGenerator_Click();
    /// Hands the index page to the system's own viewer, maximised.
    void mnuAyuda_Inkwell_Click();

  private:
    CompanionPrograms &Companions_;
    Programs &Programs_;
};

} // namespace Quillbox
