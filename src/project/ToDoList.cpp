// SPDX-License-Identifier: GPL-3.0-or-later
#include "project/ToDoList.h"

#include "state/Project.h"
#include "surfaces/Dialogs.h"

namespace Quillbox {
namespace {

std::optional<int> CurrentOf(const std::vector<Task> &tasks) {
    if (tasks.empty())
        return std::nullopt;
    int current = 0;
    for (int entry = 0; entry < static_cast<int>(tasks.size()); ++entry)
        if (tasks[static_cast<std::size_t>(entry)].Done)
            current = entry;
    return current;
}

} // namespace

ToDoList::ToDoList(Project &project, Dialogs &dialogs)
    : Project_(project)
    , Dialogs_(dialogs) {}

ToDoEntries ToDoList::Form_Load() const {
    const std::vector<Task> tasks = UnpackToDoList(Project_.ToDoList);
    return {tasks, CurrentOf(tasks)};
}

void ToDoList::Form_Unload(const std::vector<Task> &tasks) {
    Project_.ToDoList = PackToDoList(tasks);
}

std::optional<QString> ToDoList::cmdAñadir_Click() {
    const auto description = Dialogs_.ShowInput(
        {QStringLiteral("Introduce la descripción de la tarea:"), QStringLiteral("Añadir Tarea")});
    if (!description || description->isEmpty())
        return std::nullopt;
    if (description->contains(u'|')) {
        Dialogs_.ShowMessage({QStringLiteral("Has introducido un carácter no válido: '|'"),
                              QStringLiteral("Error"), MessageIcon::Critical, MessageButtons::Ok});
        return std::nullopt;
    }
    Project_.Modified = true;
    return description;
}

bool ToDoList::cmdBorrar_Click(std::optional<int> current) {
    if (!current)
        return false;
    const MessageAnswer answer =
        Dialogs_.ShowMessage({QStringLiteral("¿Estás seguro?"), QStringLiteral("Aviso"),
                              MessageIcon::Information, MessageButtons::YesNo});
    if (answer != MessageAnswer::Yes)
        return false;
    Project_.Modified = true;
    return true;
}

} // namespace Quillbox
