// SPDX-License-Identifier: GPL-3.0-or-later
#include "Program.h"
#include "Report.h"
#include "Workbench.h"

#include "platform/ProfileFiles.h"
#include "platform/SystemConsoleProcess.h"
#include "platform/SystemFiles.h"
#include "platform/SystemFolders.h"
#include "platform/SystemPrograms.h"
#include "platform/qt/QtEventLoop.h"

#include <QAction>
#include <QElapsedTimer>
#include <QTemporaryDir>

namespace Quillbox::Bench {

namespace {

constexpr int Steps = 100;
constexpr std::size_t SmallFile = 2000;
constexpr Goal OneFrame{Goal::Direction::AtMost, 16.0};
constexpr Goal Fluid{Goal::Direction::AtMost, 50.0};
constexpr Goal Memory{Goal::Direction::AtMost, 1000.0};

/// Chooses one of its files after another and answers every question with its default.
class FileQueue final : public Dialogs {
  public:
    FileQueue(int count, std::size_t fileSize) {
        const std::string text = SourceText(fileSize);
        for (int number = 1; number <= count; ++number)
            Files_.push_back(WriteFile(QStringLiteral("d%1.prg").arg(number), text));
    }

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

/// The whole program in a folder of its own.
struct RealProgram {
    RealProgram(int files, std::size_t fileSize)
        : Dialogs(files, fileSize) {
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
    Program Whole{
        {Folder.path() + u'/', Files, Profile, Console, Programs, Dialogs, Events, Disks}};
};

const QString OpenCommand = QStringLiteral("mnuArchivo_Abrir");

/// Milliseconds that one of `Steps` runs of a menu item takes, with everything that it shows.
double MillisecondsOf(frmMain &window, const QString &command, int steps) {
    auto *action = window.findChild<QAction *>(command);
    QElapsedTimer clock;
    clock.start();
    for (int step = 0; step < steps; ++step) {
        action->trigger();
        QCoreApplication::processEvents();
    }
    return static_cast<double>(clock.elapsed()) / steps;
}

} // namespace

void MeasureDocuments() {
    RealProgram real(DocumentRegistry::Capacity, SmallFile);
    Program &program = real.Whole;
    const QString previous = QStringLiteral("mnuVentana_Anterior");
    const double before = ResidentBytes();
    MillisecondsOf(program.Main(), OpenCommand, DocumentRegistry::Capacity - Steps);
    Print("Opening one of the last 100 of 1000 documents",
          MillisecondsOf(program.Main(), OpenCommand, Steps), "ms", Fluid);
    Print("Going to another of 1000 documents", MillisecondsOf(program.Main(), previous, Steps),
          "ms", OneFrame);
    Print("Memory for each of 1000 documents",
          (ResidentBytes() - before) / DocumentRegistry::Capacity / 1000, "KB", Memory);
}

/// With the scans for functions and types that the program makes when it opens a file.
void MeasureOpeningInTheProgram(double reading) {
    std::optional<RealProgram> real;
    const double opening = ShortestTime(
        3, [&] { MillisecondsOf(real->Whole.Main(), OpenCommand, 1); },
        [&] { real.emplace(1, LargeText); });
    Print({"Opening 100 MB of source in the whole program, against reading the file",
           opening,
           reading,
           "s",
           {Goal::Direction::AtMost, 10}});
}

} // namespace Quillbox::Bench
