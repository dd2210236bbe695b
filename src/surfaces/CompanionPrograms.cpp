// SPDX-License-Identifier: GPL-3.0-or-later
#include "surfaces/CompanionPrograms.h"

#include "base/AppDir.h"
#include "base/Paths.h"
#include "surfaces/FileExists.h"
#include "surfaces/Programs.h"

namespace Quillbox {

CompanionPrograms::CompanionPrograms(const QString &appDir, Files &files, Programs &programs,
                                     Dialogs &dialogs)
    : AppDir_(appDir)
    , Files_(files)
    , Programs_(programs)
    , Dialogs_(dialogs) {}

void CompanionPrograms::Start(const QString &folder, const QString &executable, WindowStyle style,
                              const QString &arguments) {
    const QString path = AppDir_ + folder + PathSeparator + executable;
    if (FileExists(path, Files_, Dialogs_))
        Programs_.Start(arguments.isEmpty() ? path : path + u' ' + arguments, style);
}

void CompanionPrograms::ShowHelpPage(const QString &page) {
    Programs_.Start(QStringLiteral("explorer.exe ") + HelpPagePath(AppDir_, page),
                    WindowStyle::Maximized);
}

} // namespace Quillbox
