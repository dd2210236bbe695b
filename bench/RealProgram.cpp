// SPDX-License-Identifier: GPL-3.0-or-later
#include "RealProgram.h"

#include <QAction>
#include <QElapsedTimer>

namespace Quillbox::Bench {

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

std::vector<QString> SameFiles(int count, const std::string &text) {
    std::vector<QString> files;
    for (int number = 1; number <= count; ++number)
        files.push_back(WriteFile(QStringLiteral("d%1.prg").arg(number), text));
    return files;
}

} // namespace Quillbox::Bench
