// SPDX-License-Identifier: GPL-3.0-or-later
#include "Program.h"
#include "Report.h"
#include "Workbench.h"

#include "platform/ProfileFiles.h"
#include "platform/SystemConsoleProcess.h"
#include "platform/SystemFiles.h"
#include "platform/SystemPrograms.h"
#include "platform/qt/QtEventLoop.h"

#include <QAction>
#include <QElapsedTimer>
#include <QTemporaryDir>

namespace Quillbox::Bench {

namespace {

constexpr int Steps = 100;
constexpr Goal OneFrame{Goal::Direction::AtMost, 16.0};
constexpr Goal Fluid{Goal::Direction::AtMost, 50.0};
constexpr Goal Memory{Goal::Direction::AtMost, 1000.0};

/// Chooses a new small file each time and answers every question with its default.
class FileQueue final : public Dialogs {
  public:
    MessageAnswer ShowMessage(const Message &) override { return MessageAnswer::Ok; }
    std::optional<QString> ShowOpen(const FileChooser &) override {
        return WriteFile(QStringLiteral("d%1.prg").arg(++Number_), SourceText(SmallFile));
    }
    std::optional<QString> ShowSave(const FileChooser &) override { return std::nullopt; }
    std::optional<QString> ShowInput(const InputBox &) override { return std::nullopt; }

  private:
    static constexpr std::size_t SmallFile = 2000;

    int Number_ = 0;
};

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
    const QTemporaryDir folder;
    SystemFiles files;
    ProfileFiles profile;
    SystemConsoleProcess console;
    SystemPrograms programs;
    FileQueue dialogs;
    QtEventLoop events;
    Program program({folder.path() + u'/', files, profile, console, programs, dialogs, events});
    program.Start();

    const QString open = QStringLiteral("mnuArchivo_Abrir");
    const QString previous = QStringLiteral("mnuVentana_Anterior");
    const double before = ResidentBytes();
    MillisecondsOf(program.Main(), open, DocumentRegistry::Capacity - Steps);
    Print("Opening one of the last 100 of 1000 documents",
          MillisecondsOf(program.Main(), open, Steps), "ms", Fluid);
    Print("Going to another of 1000 documents", MillisecondsOf(program.Main(), previous, Steps),
          "ms", OneFrame);
    Print("Memory for each of 1000 documents",
          (ResidentBytes() - before) / DocumentRegistry::Capacity / 1000, "KB", Memory);
}

} // namespace Quillbox::Bench
