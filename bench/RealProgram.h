// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Program.h"
#include "Workbench.h"

#include "platform/ProfileFiles.h"
#include "platform/SystemConsoleProcess.h"
#include "platform/SystemFiles.h"
#include "platform/SystemFolders.h"
#include "platform/SystemPrograms.h"
#include "widgets/QtEventLoop.h"

#include <QTemporaryDir>

#include <vector>

namespace Quillbox::Bench {

/// Chooses its files one after another and answers every question with its default.
class FileQueue final : public Dialogs {
  public:
    explicit FileQueue(std::vector<QString> files)
        : Files_(std::move(files)) {}

    MessageAnswer ShowMessage(const Message &) override { return MessageAnswer::Ok; }
    std::optional<QString> ShowOpen(const FileChooser &) override { return Files_.at(Next_++); }
    std::optional<QString> ShowSave(const FileChooser &) override { return std::nullopt; }
    std::optional<QString> ShowInput(const InputBox &) override { return std::nullopt; }
    std::optional<Color> ShowColor(Color) override { return std::nullopt; }
    std::optional<FontChoice> ShowFont(const FontChoice &) override { return std::nullopt; }

  private:
    std::vector<QString> Files_;
    std::size_t Next_ = 0;
};

/// The whole program, in an empty folder of its own or in `appDir`.
struct RealProgram {
    /// The Open command chooses `files` one after another.
    explicit RealProgram(std::vector<QString> files, const QString &appDir = {})
        : Dialogs(std::move(files))
        , Whole({appDir.isEmpty() ? Folder.path() + u'/' : appDir, Files, Profile, Console,
                 Programs, Dialogs, Events, Disks}) {
        Whole.Start();
    }

    QTemporaryDir Folder;
    SystemFiles Files;
    ProfileFiles Profile;
    SystemConsoleProcess Console;
    SystemPrograms Programs;
    FileQueue Dialogs;
    QtEventLoop Events;
    SystemFolders Disks;
    Program Whole;
};

inline const QString OpenCommand = QStringLiteral("mnuArchivo_Abrir");

/// Milliseconds that one of `steps` runs of a menu item takes, with everything that it shows.
double MillisecondsOf(frmMain &window, const QString &command, int steps);

/// Names of `count` files with the same text.
std::vector<QString> SameFiles(int count, const std::string &text);

} // namespace Quillbox::Bench
