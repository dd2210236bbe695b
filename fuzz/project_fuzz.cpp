// SPDX-License-Identifier: GPL-3.0-or-later
// Random bytes as a project file and as packed texts: a saved project is read back as it was and a
// second saving changes nothing; what was unpacked once comes back after packing.
#include "Fuzz.h"
#include "ProfileInMemory.h"

#include "project/PackedLists.h"
#include "project/ProjectFile.h"
#include "state/Project.h"

#include <algorithm>

using namespace Quillbox;

namespace {

Project ReadFrom(ProfileInMemory &profile) {
    Project project;
    project.File = QStringLiteral("juego.fp");
    ReadProject(project, profile);
    return project;
}

void CheckFile(const QByteArray &content) {
    ProfileInMemory profile(content);
    const Project project = ReadFrom(profile);
    WriteProject(project, profile);
    const QByteArray once = profile.Content;
    const Project again = ReadFrom(profile);
    for (const ProjectKey &key : ProjectKeys())
        Require(!ComesBack(project.*key.Field) || again.*key.Field == project.*key.Field);
    WriteProject(project, profile);
    Require(profile.Content == once);
}

void CheckPackedTexts(const QString &text) {
    Require(PackOtherSources(UnpackOtherSources(text)) == text);
    const std::vector<Task> tasks = UnpackToDoList(text);
    const QString packed = PackToDoList(tasks);
    Require(UnpackToDoList(packed) == tasks);
    Require(PackToDoList(UnpackToDoList(packed)) == packed);
    Require(std::none_of(tasks.begin(), tasks.end(),
                         [](const Task &task) { return task.Description.contains(u'|'); }));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    const QByteArray content = BytesOf(data, size);
    CheckFile(content);
    CheckFile("[Proyecto]\r\nToDoList=" + content);
    CheckPackedTexts(FromAnsi(content));
    return 0;
}
