// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDialog>

class QLineEdit;
class QPushButton;
class QVBoxLayout;

namespace Quillbox {

class EntryList;
class EventBoundary;
class ProjectInfo;
struct ProjectInfoTexts;

/// Title, author and files of the open project. The rules take them over when it closes, after
/// which it deletes itself.
class frmProjectInfo final : public QDialog {
    Q_OBJECT
  public:
    frmProjectInfo(ProjectInfo &rules, const EventBoundary &boundary, QWidget *owner);

  private:
    void BuildFields(QVBoxLayout &layout);
    void BuildList(QVBoxLayout &layout);
    void ShowTexts(const ProjectInfoTexts &texts);
    ProjectInfoTexts Texts() const;
    void OnAdd();
    void OnRemove();
    void OnOpen();

    ProjectInfo &Rules_;
    const EventBoundary &Boundary_;
    QLineEdit *txtProjectPath = nullptr;
    QLineEdit *txtTitle = nullptr;
    QLineEdit *txtAuthor = nullptr;
    QLineEdit *txtMainFile = nullptr;
    EntryList *lstFiles = nullptr;
};

} // namespace Quillbox
