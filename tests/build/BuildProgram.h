// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/Paths.h"
#include "build/BuildCommands.h"
#include "build/Compiler.h"
#include "build/CompilerLog.h"
#include "build/LanguageTools.h"
#include "fakes/ErrorNumber.h"
#include "fakes/FakeProgram.h"

#include <gmock/gmock.h>

namespace Quillbox {

inline const QString ProgramFolder = QStringLiteral("/quillbox") + PathSeparator;
inline const QString LogFile = ProgramFolder + PathSeparator + QStringLiteral("CLog.tmp");

/// The build rules over one open, unmodified document, "/j/juego.prg", which is the current one.
/// The compiler prints "Listo" and finds no error.
class BuildProgram : public FakeProgram {
  protected:
    BuildProgram() {
        Options.FenixCPath = QStringLiteral("C:\\fenix\\fxc.exe");
        Options.MainPath = QStringLiteral("C:\\fenix\\");
        Console.Output = "Listo\r\n";
        Open({"/j/juego.prg"});
    }

    /// What the commands ask for, without the steps inside the process runner.
    std::vector<std::string> Steps() const {
        return Log.CallsOf({"programs.", "editor.", "dialogs.", "console.StartProcess",
                            "main.SetLog", "files.", "window.SetCaption"});
    }
    std::vector<std::string> CommandLines() const {
        std::vector<std::string> lines;
        for (const QString &line : Console.CommandLines)
            lines.push_back(line.toStdString());
        return lines;
    }

    CompilerLog Reader{ProgramFolder, Registry, Documents, Stored, Questions};
    Compiler Runner{Console, Events, Main, Reader};
    LanguageTools Tools{Options, Launcher};
    BuildCommands Build{Registry, Documents, Questions, Runner, Tools};
};

} // namespace Quillbox
