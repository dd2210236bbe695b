// SPDX-License-Identifier: GPL-3.0-or-later
// Whole project files and packed texts, the malformed ones included. A folder "todo_..." holds a
// packed to-do list, its tasks and how they are packed again; "sources_..." a packed list of paths,
// which always comes back as it was; "file_..." a project file, its fields and its bytes after the
// project was saved with another title.
#include "fakes/CallLog.h"
#include "fakes/GoldenCases.h"
#include "platform/ProfileFiles.h"
#include "project/PackedLists.h"
#include "project/ProjectFile.h"
#include "state/Project.h"

#include <QTemporaryDir>

namespace Quillbox {
namespace {

std::vector<std::string> CasesOf(std::string_view kind) {
    std::vector<std::string> cases = GoldenCases("project");
    std::erase_if(cases, [kind](const std::string &name) { return !name.starts_with(kind); });
    return cases;
}

class ProjectCase : public testing::TestWithParam<std::string> {
  protected:
    std::filesystem::path PathOf(const char *name) const {
        return GoldenFolder("project") / GetParam() / name;
    }
    QString Text(const char *name) const { return ReadAnsi(PathOf(name)); }
};

class PackedToDoList : public ProjectCase {};
class PackedSources : public ProjectCase {};
class ProjectFile : public ProjectCase {
  protected:
    Project ReadCopy(const std::filesystem::path &copy) {
        std::filesystem::copy_file(PathOf("project.fp"), copy);
        Project project;
        project.File = QString::fromStdString(copy.string());
        ReadProject(project, Profile);
        return project;
    }

    QTemporaryDir Folder;
    const std::filesystem::path Copy = Folder.filePath("copia.fp").toStdString();
    ProfileFiles Profile;
};

TEST_P(PackedToDoList, HoldsTheExpectedTasks) {
    QString lines;
    for (const Task &task : UnpackToDoList(Text("todo.txt")))
        lines += QLatin1String(task.Done ? "[x] " : "[ ] ") + task.Description + u'\n';

    EXPECT_EQ(lines, Text("tasks.txt"));
}

TEST_P(PackedToDoList, IsPackedAgainAsExpected) {
    EXPECT_EQ(PackToDoList(UnpackToDoList(Text("todo.txt"))), Text("packed.txt"));
}

TEST_P(PackedSources, HoldTheExpectedPaths) {
    QString lines;
    for (const QString &path : UnpackOtherSources(Text("sources.txt")))
        lines += path + u'\n';

    EXPECT_EQ(lines, Text("paths.txt"));
}

TEST_P(PackedSources, ArePackedAgainAsTheyWere) {
    EXPECT_EQ(PackOtherSources(UnpackOtherSources(Text("sources.txt"))), Text("sources.txt"));
}

TEST_P(ProjectFile, HoldsTheExpectedFields) {
    const Project project = ReadCopy(Copy);

    EXPECT_EQ(QStringLiteral("Title: %1\nAuthor: %2\nMainSource: %3\nOtherSources: %4\n"
                             "ToDoList: %5\n")
                  .arg(project.Title, project.Author, project.MainSource, project.OtherSources,
                       project.ToDoList),
              Text("fields.txt"));
}

TEST_P(ProjectFile, KeepsEverythingElseWhenItIsSaved) {
    Project project = ReadCopy(Copy);
    project.Title = QStringLiteral("Título nuevo");

    WriteProject(project, Profile);

    EXPECT_EQ(ReadBytes(Copy), ReadBytes(PathOf("saved.fp")));
}

constexpr auto CaseName = [](const auto &golden) { return golden.param; };
INSTANTIATE_TEST_SUITE_P(Golden, PackedToDoList, testing::ValuesIn(CasesOf("todo_")), CaseName);
INSTANTIATE_TEST_SUITE_P(Golden, PackedSources, testing::ValuesIn(CasesOf("sources_")), CaseName);
INSTANTIATE_TEST_SUITE_P(Golden, ProjectFile, testing::ValuesIn(CasesOf("file_")), CaseName);

TEST(PackedLists, CannotTellASingleEmptyPathFromNone) {
    EXPECT_EQ(PackOtherSources({QString()}), "");
}

} // namespace
} // namespace Quillbox
