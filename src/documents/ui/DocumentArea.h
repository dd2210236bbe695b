// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QTimer>

namespace Quillbox {

/// The area of the document windows. While the active one is maximised the others stay outside the
/// area: nobody sees them, and a thousand of them would take part in every repaint and every change
/// of the active window. subWindowActivated tells of windows that a person or a rule made active,
/// not of those that become active because others come and go.
class DocumentArea final : public QMdiArea {
    Q_OBJECT
  public:
    explicit DocumentArea(QWidget *parent = nullptr);
    ~DocumentArea() override;

    /// Takes the window over; it does not come into view yet.
    void Add(QMdiSubWindow *window);
    void Show(QMdiSubWindow *window);
    /// Makes `window` the active child.
    void Activate(QMdiSubWindow *window);
    /// Takes the window out for good; the caller deletes it.
    void Remove(QMdiSubWindow *window);

  private:
    void PutInside(QMdiSubWindow *window);
    void Arrange();
    void TakeOutAllBut(QMdiSubWindow *active);
    void ShowAllBehind(QMdiSubWindow *active);

    QList<QMdiSubWindow *> Windows_;
    QTimer ArrangeTimer_; ///< runs when a change of the active window is over
};

} // namespace Quillbox
