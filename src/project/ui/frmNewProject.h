// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDialog>

#include <functional>
#include <optional>

class QGridLayout;
class QLineEdit;

namespace Quillbox {

class EventBoundary;
class NewProject;

/// Asks for what a new project needs. Shown until it is closed.
class frmNewProject final : public QDialog {
    Q_OBJECT
  public:
    /// `startScaffolder` starts the code generator.
    frmNewProject(NewProject &rules, const EventBoundary &boundary,
                  std::function<void()> startScaffolder, QWidget *owner);

  private:
    void BuildFields();
    void BuildButtons();
    /// Beside the last text box, which takes what `choose` yields.
    void AddBrowseButton(const QString &name, const QString &caption, QLineEdit &box,
                         std::optional<QString> (NewProject::*choose)());
    void OnAccept();

    NewProject &Rules_;
    const EventBoundary &Boundary_;
    std::function<void()> StartScaffolder_;
    QGridLayout *Grid_;
    QLineEdit *txtTitle = nullptr;
    QLineEdit *txtAuthor = nullptr;
    QLineEdit *txtMainSource = nullptr;
    QLineEdit *txtTarget = nullptr;
};

} // namespace Quillbox
