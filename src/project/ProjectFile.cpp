// SPDX-License-Identifier: GPL-3.0-or-later
#include "project/ProjectFile.h"

#include "state/Language.h"
#include "state/Project.h"

namespace Quillbox {
namespace {

const QString Section = QStringLiteral("Proyecto");

/// A value and the NUL behind it.
constexpr int ValueCapacity = 5 * 1024;

constexpr ProjectKey Keys[] = {
    {"Titulo", &Project::Title, "Sin Titulo"},
    {"Autor", &Project::Author, "Autor desconocido"},
    {"MainSource", &Project::MainSource, SourceLanguage.MainSource.data()},
    {"OtrosSource", &Project::OtherSources, ""},
    {"ToDoList", &Project::ToDoList, ""},
};

} // namespace

std::span<const ProjectKey> ProjectKeys() { return Keys; }

void ReadProject(Project &project, PrivateProfile &profile) {
    for (const ProjectKey &key : Keys)
        project.*key.Field =
            profile.ReadString(Section, QString::fromUtf8(key.Name), QString::fromUtf8(key.Default),
                               ValueCapacity, project.File);
}

void WriteProject(const Project &project, PrivateProfile &profile) {
    std::vector<PrivateProfile::KeyValue> values;
    for (const ProjectKey &key : Keys)
        values.emplace_back(QString::fromUtf8(key.Name), project.*key.Field);
    profile.WriteStrings(Section, values, project.File);
}

} // namespace Quillbox
