// SPDX-License-Identifier: GPL-3.0-or-later
#include "Workbench.h"

#include <QApplication>

/// Without arguments measures everything; otherwise what the arguments name: loading, memory,
/// colouring, line, documents, symbols, media, finding. Alone: startup, or replacing and a file.
int main(int argc, char *argv[]) {
    using namespace Quillbox::Bench;
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    const QStringList wanted = QCoreApplication::arguments().mid(1);
    if (wanted.contains(QStringLiteral("--memory"))) {
        PrintMemoryOfColouredText();
        return 0;
    }
    if (wanted.contains(QStringLiteral("startup"))) {
        MeasureStartUp();
        return 0;
    }
    if (wanted.size() == 2 && wanted.first() == QStringLiteral("replacing")) {
        MeasureReplacingIn(wanted.last());
        return 0;
    }
    const auto isWanted = [&wanted](const char *name) {
        return wanted.isEmpty() || wanted.contains(QLatin1String(name));
    };
    if (isWanted("loading"))
        MeasureLoading();
    if (isWanted("memory"))
        MeasureMemory(QCoreApplication::applicationFilePath());
    if (isWanted("colouring"))
        MeasureColouring();
    if (isWanted("line"))
        MeasureLongLine();
    if (isWanted("documents"))
        MeasureDocuments();
    if (isWanted("symbols"))
        MeasureSymbols();
    if (isWanted("media"))
        MeasureMediaBrowser();
    if (isWanted("finding"))
        MeasureFinding();
    return 0;
}
