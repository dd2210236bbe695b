// SPDX-License-Identifier: GPL-3.0-or-later
#include "Program.h"

#include "app/ui/frmLogo.h"
#include "base/AppDir.h"
#include "platform/ProfileFiles.h"
#include "platform/SystemConsoleProcess.h"
#include "platform/SystemFiles.h"
#include "platform/SystemFolders.h"
#include "platform/SystemPrograms.h"
#include "widgets/PlainButtonStyle.h"
#include "widgets/QtDialogs.h"
#include "widgets/QtEventLoop.h"
#include "widgets/SpanishInterface.h"

#include <QApplication>
#include <QIcon>

#include <optional>

namespace Quillbox {
namespace {

/// A run-time error during start-up ends the program.
void StartOrQuit(std::optional<Program> &program, const Outside &outside) {
    try {
        program.emplace(outside).Start();
    } catch (const RuntimeError &error) {
        outside.Dialogs.ShowMessage(
            {ErrorMessage(error), QStringLiteral("Quillbox"), MessageIcon::Critical});
        std::exit(EXIT_FAILURE);
    }
}

int Run() {
    QApplication::setApplicationName(QStringLiteral("Quillbox"));
    QApplication::setStyle(new PlainButtonStyle);
    QApplication::setWindowIcon(QIcon(QStringLiteral(":/icons/quillbox.svg")));

    const QString appDir = AppDirOf(QApplication::applicationDirPath());
    const SpanishInterface spanish(appDir);
    SystemFiles files;
    ProfileFiles profile;
    SystemConsoleProcess console;
    SystemPrograms programs;
    QtDialogs dialogs;
    QtEventLoop events;
    SystemFolders folders;
    const Outside outside{appDir, files, profile, console, programs, dialogs, events, folders};

    std::optional<Program> program;
    frmLogo splash([&] { StartOrQuit(program, outside); }, events);
    splash.show();
    return QApplication::exec();
}

} // namespace
} // namespace Quillbox

int main(int argc, char *argv[]) {
    const QApplication application(argc, argv);
    return Quillbox::Run();
}
