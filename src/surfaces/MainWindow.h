// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace Quillbox {

class DocumentWindow;

/// The main window as the rules see it.
class MainWindow {
  public:
    virtual ~MainWindow() = default;

    virtual void SetCaption(const QString &caption) = 0;
    /// `name` is a menu or a menu item by its control name.
    virtual void EnableCommand(const QString &name, bool enabled) = 0;
    virtual void CheckCommand(const QString &name, bool checked) = 0;
    /// Every tool button with this tooltip text.
    virtual void EnableToolButtons(const QString &tooltip, bool enabled) = 0;
    virtual void SetLog(const QString &text) = 0;
    /// A new document window, not yet shown, with the untitled caption. The main window owns it
    /// until DocumentWindow::Close.
    virtual DocumentWindow &CreateDocumentWindow() = 0;
    /// Shows the Edit menu as a pop-up at the pointer.
    virtual void PopUpEditMenu() = 0;
    /// Brings the window forward and gives it the keyboard.
    virtual void Activate() = 0;
    /// Asks the window to close, which runs the closing questions.
    virtual void RequestClose() = 0;
};

/// The strip of tabs above the documents. Positions are 1-based; tab 1 is the help page.
class TabStrip {
  public:
    virtual ~TabStrip() = default;

    /// Adds a tab at `position` without selecting it.
    virtual void AddTab(int position, const QString &caption) = 0;
    /// Removes a tab; when it was the selected one, no tab is selected afterwards.
    virtual void RemoveTab(int position) = 0;
    /// Selects a tab, which raises its click as if the person had clicked it.
    virtual void SelectTab(int position) = 0;
    /// 0 when no tab is selected.
    virtual int SelectedTab() const = 0;
    virtual void SetTabCaption(int position, const QString &caption) = 0;
};

enum class NavigationList { Functions, Labels, Types };

/// The drop-down lists cmbFunciones, cmbLabels and cmbTypes. Items are numbered from 0.
class NavigationLists {
  public:
    virtual ~NavigationLists() = default;

    virtual int ItemCount(NavigationList list) const = 0;
    virtual void AddItem(NavigationList list, const QString &text) = 0;
    virtual void RemoveItem(NavigationList list, int item) = 0;
    /// -1 when nothing is selected.
    virtual int SelectedItem(NavigationList list) const = 0;
};

} // namespace Quillbox
