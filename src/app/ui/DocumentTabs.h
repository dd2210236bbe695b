// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "surfaces/MainWindow.h"

#include <QTabBar>

#include <functional>

namespace Quillbox {

/// The strip tabDocuments. Every selection, by hand or by a rule, arrives as one click.
class DocumentTabs final : public QTabBar, public TabStrip {
    Q_OBJECT
  public:
    explicit DocumentTabs(std::function<void(int tab)> click, QWidget *parent = nullptr);

    void AddTab(int position, const QString &caption) override;
    void RemoveTab(int position) override;
    void SelectTab(int position) override;
    int SelectedTab() const override;
    void SetTabCaption(int position, const QString &caption) override;

  private:
    std::function<void(int tab)> Click_;
    int SelectedTab_ = 1; ///< 1-based; 0 after the selected tab was removed
};

} // namespace Quillbox
