// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "surfaces/MainWindow.h"

#include <QToolBar>

#include <array>
#include <functional>

class QComboBox;

namespace Quillbox {

/// The bar with the drop-down lists of functions, labels and types.
class NavigationBar final : public QToolBar, public NavigationLists {
    Q_OBJECT
  public:
    /// An entry was clicked, or any key was let go in the list.
    using ListEvent = std::function<void(NavigationList)>;
    explicit NavigationBar(ListEvent used, QWidget *parent = nullptr);

    int ItemCount(NavigationList list) const override;
    void AddItem(NavigationList list, const QString &text) override;
    void RemoveItem(NavigationList list, int item) override;
    int SelectedItem(NavigationList list) const override;

  protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

  private:
    static constexpr std::size_t ListCount = 3;

    QComboBox &BoxOf(NavigationList list) const;

    ListEvent Used_;
    std::array<QComboBox *, ListCount> Boxes_{};
};

} // namespace Quillbox
