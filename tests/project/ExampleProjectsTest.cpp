// SPDX-License-Identifier: GPL-3.0-or-later
// The projects among the examples, as they are delivered.
#include "fakes/CallLog.h"
#include "fakes/GoldenCases.h"
#include "fakes/SourceTree.h"
#include "platform/ProfileFiles.h"
#include "project/PackedLists.h"
#include "project/ProjectFile.h"
#include "state/Project.h"

#include <gmock/gmock.h>

namespace Quillbox {
namespace {

/// The folder that holds the folder examples, from which the paths in the projects count.
const std::filesystem::path Start = SourceTree();

class ExampleProject : public testing::TestWithParam<const char *> {
  protected:
    ExampleProject() {
        Read.File = QString::fromStdString((Start / "examples" / GetParam()).string());
        ReadProject(Read, Profile);
    }

    ProfileFiles Profile;
    Project Read;
};

TEST_P(ExampleProject, NamesSourcesThatAreThere) {
    const QStringList others = UnpackOtherSources(Read.OtherSources);
    EXPECT_FALSE(others.isEmpty());
    for (const QString &source : QStringList(Read.MainSource) + others)
        EXPECT_TRUE(std::filesystem::exists(Start / source.toStdString())) << qPrintable(source);
}

TEST_P(ExampleProject, HasDoneAndPendingTasks) {
    const std::vector<Task> tasks = UnpackToDoList(Read.ToDoList);
    EXPECT_THAT(tasks, testing::Contains(testing::Field(&Task::Done, true)));
    EXPECT_THAT(tasks, testing::Contains(testing::Field(&Task::Done, false)));
    EXPECT_EQ(PackToDoList(tasks), Read.ToDoList);
}

TEST_P(ExampleProject, HoldsItsFieldsInLinesAsASavingWritesThem) {
    const std::string before = ReadBytes(Read.File.toStdString());
    QByteArray bytes = QByteArray::fromStdString(before);
    EXPECT_EQ(bytes.count('\n'), bytes.count("\r\n"));
    for (const ProjectKey &key : ProjectKeys())
        EXPECT_TRUE(bytes.contains(QByteArray(key.Name) + '=' + ToAnsi(Read.*key.Field) + "\r\n"));
}

INSTANTIATE_TEST_SUITE_P(Examples, ExampleProject,
                         testing::Values("proyecto_meteoritos/Meteoritos.fp",
                                         "proyecto_preguntas/Preguntas.fp"));

} // namespace
} // namespace Quillbox
