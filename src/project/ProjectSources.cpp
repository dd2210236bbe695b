// SPDX-License-Identifier: GPL-3.0-or-later
#include "project/ProjectSources.h"

#include "documents/DocumentCommands.h"
#include "surfaces/FileExists.h"

namespace Quillbox {

ProjectSources::ProjectSources(Files &files, Dialogs &dialogs, DocumentCommands &documents)
    : Files_(files)
    , Dialogs_(dialogs)
    , Documents_(documents) {}

void ProjectSources::Open(const QString &path) {
    if (FileExists(path, Files_, Dialogs_))
        Documents_.OpenDocument(path);
}

} // namespace Quillbox
