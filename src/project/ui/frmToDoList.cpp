// SPDX-License-Identifier: GPL-3.0-or-later
#include "project/ui/frmToDoList.h"

#include "project/ToDoList.h"
#include "project/ui/EntryList.h"
#include "widgets/Controls.h"
#include "widgets/EventBoundary.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

namespace Quillbox {
namespace {

constexpr QSize InitialSize(480, 360);

} // namespace

frmToDoList::frmToDoList(ToDoList &rules, const EventBoundary &boundary, QWidget *owner)
    : QDialog(owner)
    , Rules_(rules)
    , Boundary_(boundary) {
    setObjectName(QStringLiteral("frmToDoList"));
    setWindowTitle(QStringLiteral("Tareas Pendientes"));
    auto *layout = new QVBoxLayout(this);
    BuildList(*layout);
    BuildButtons(*layout);
    resize(InitialSize);
    ShowTasks();
    lstToDo->setFocus();
    connect(this, &QDialog::finished, this, [this] {
        Boundary_.Run([this] { Rules_.Form_Unload(Tasks()); });
        deleteLater();
    });
}

void frmToDoList::BuildList(QVBoxLayout &layout) {
    auto *caption = new QLabel(QStringLiteral("&Tareas:"), this);
    lstToDo = new EntryList(QStringLiteral("lstToDo"), this);
    lstToDo->setWordWrap(true);
    caption->setBuddy(lstToDo);
    layout.addWidget(caption);
    layout.addWidget(lstToDo, 1);
    layout.addWidget(
        new QLabel(QStringLiteral("Espacio o Intro marca la tarea como hecha o pendiente."), this));
    connect(lstToDo, &EntryList::DeletePressed, this, &frmToDoList::OnRemove);
    connect(lstToDo, &EntryList::Activated, this, &frmToDoList::ToggleCurrent);
}

void frmToDoList::BuildButtons(QVBoxLayout &layout) {
    auto *add = NewButton("cmdAñadir", "&Añadir...");
    auto *remove = NewButton("cmdBorrar", "&Borrar");
    auto *closing = NewButton("cmdCerrar", "&Cerrar");
    add->setDefault(true);
    auto *row = new QHBoxLayout;
    row->addWidget(add);
    row->addWidget(remove);
    row->addStretch();
    row->addWidget(closing);
    layout.addLayout(row);
    connect(add, &QPushButton::clicked, this, &frmToDoList::OnAdd);
    connect(remove, &QPushButton::clicked, this, &frmToDoList::OnRemove);
    connect(closing, &QPushButton::clicked, this, &QDialog::reject);
}

void frmToDoList::AddEntry(const Task &task) {
    lstToDo->AddEntry(task.Description).setCheckState(task.Done ? Qt::Checked : Qt::Unchecked);
}

void frmToDoList::ShowTasks() {
    const ToDoEntries entries = Rules_.Form_Load();
    for (const Task &task : entries.Tasks)
        AddEntry(task);
    if (entries.Current)
        lstToDo->setCurrentRow(*entries.Current);
}

std::vector<Task> frmToDoList::Tasks() const {
    std::vector<Task> tasks;
    for (int row = 0; row < lstToDo->count(); ++row) {
        const QListWidgetItem &entry = *lstToDo->item(row);
        tasks.push_back({entry.text(), entry.checkState() == Qt::Checked});
    }
    return tasks;
}

void frmToDoList::OnAdd() {
    Boundary_.Run([this] {
        const auto description = Rules_.cmdAñadir_Click();
        if (!description)
            return;
        AddEntry({*description, false});
        lstToDo->setCurrentRow(lstToDo->count() - 1);
    });
}

void frmToDoList::OnRemove() {
    Boundary_.Run([this] {
        const auto selected = lstToDo->Selected();
        if (Rules_.cmdBorrar_Click(selected))
            delete lstToDo->takeItem(*selected);
    });
}

void frmToDoList::ToggleCurrent() {
    if (QListWidgetItem *entry = lstToDo->Selected() ? lstToDo->currentItem() : nullptr)
        entry->setCheckState(entry->checkState() == Qt::Checked ? Qt::Unchecked : Qt::Checked);
}

} // namespace Quillbox
