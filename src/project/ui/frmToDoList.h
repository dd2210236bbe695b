// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDialog>

#include <vector>

class QVBoxLayout;

namespace Quillbox {

class EntryList;
class EventBoundary;
class ToDoList;
struct Task;

/// The tasks of the open project, each with a check mark for what is done. The rules take them over
/// when it closes, after which it deletes itself.
class frmToDoList final : public QDialog {
    Q_OBJECT
  public:
    frmToDoList(ToDoList &rules, const EventBoundary &boundary, QWidget *owner);

  private:
    void BuildList(QVBoxLayout &layout);
    void BuildButtons(QVBoxLayout &layout);
    void AddEntry(const Task &task);
    void ShowTasks();
    std::vector<Task> Tasks() const;
    void OnAdd();
    void OnRemove();
    void ToggleCurrent();

    ToDoList &Rules_;
    const EventBoundary &Boundary_;
    EntryList *lstToDo = nullptr;
};

} // namespace Quillbox
