// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/ExternalTools.h"

#include "base/AppDir.h"
#include "base/Paths.h"
#include "surfaces/FileExists.h"
#include "surfaces/Programs.h"

namespace Quillbox {

ExternalTools::ExternalTools(const QString &appDir, Programs &launcher, Files &files,
                             Dialogs &dialogs)
    : AppDir_(appDir)
    , Launcher_(launcher)
    , Files_(files)
    , Dialogs_(dialogs) {}

void ExternalTools::mnuHerramientas_Calculadora_Click() {
    Launcher_.Start(QStringLiteral("calc.exe"), WindowStyle::Minimized);
}

void ExternalTools::mnuHerramientas_ScaffolderGenerator_Click() {
    const QString path =
        AppDir_ + QStringLiteral("Scaffolder") + PathSeparator + QStringLiteral("Scaffolder.exe");
    if (FileExists(path, Files_, Dialogs_))
        Launcher_.Start(path, WindowStyle::Normal);
}

void ExternalTools::mnuAyuda_Inkwell_Click() {
    Launcher_.Start(QStringLiteral("explorer.exe ") +
                        HelpPagePath(AppDir_, QStringLiteral("index.htm")),
                    WindowStyle::Maximized);
}

} // namespace Quillbox
