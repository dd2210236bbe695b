// SPDX-License-Identifier: GPL-3.0-or-later
#include "Report.h"
#include "Workbench.h"

#include "media/ui/FileList.h"
#include "media/ui/FolderList.h"
#include "platform/SystemFolders.h"

#include <QFile>
#include <QTemporaryDir>

namespace Quillbox::Bench {

namespace {

constexpr int FileCount = 20000;
constexpr Goal AtOnce{Goal::Direction::AtMost, 200.0};

void FillWithFiles(const QTemporaryDir &folder) {
    for (int number = 0; number < FileCount; ++number) {
        QFile file(
            folder.filePath(QStringLiteral("Textura año %1.png").arg(number * 7919 % 20011)));
        if (!file.open(QIODevice::WriteOnly))
            std::abort();
    }
}

} // namespace

void MeasureMediaBrowser() {
    const QTemporaryDir folder;
    FillWithFiles(folder);
    SystemFolders disks;
    FolderList folders(disks, nullptr);
    FileList files(disks, nullptr);
    for (QListView *list : {static_cast<QListView *>(&folders), static_cast<QListView *>(&files)}) {
        list->resize(300, 400);
        list->show();
    }
    const double opening = ShortestTime(5, [&] {
        folders.SetPath(folder.path());
        files.SetPath(folder.path());
        folders.viewport()->repaint();
        files.viewport()->repaint();
    });
    if (files.model()->rowCount() != FileCount)
        std::abort();
    Print("Opening a folder of 20,000 media files until it shows", opening * 1000, "ms", AtOnce);
}

} // namespace Quillbox::Bench
