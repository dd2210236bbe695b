// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace Quillbox {

class EditorControl;

/// Panels of a document's status bar, numbered from 1 as their control names are.
enum class StatusPanel { QuickHelp = 1, Modified = 2, CaretPosition = 3 };

/// The child window of one document.
class DocumentWindow {
  public:
    virtual ~DocumentWindow() = default;

    virtual EditorControl &Editor() = 0;
    virtual QString Caption() const = 0;
    virtual void SetCaption(const QString &caption) = 0;
    /// Takes its place among the document windows. It comes into view when it is first activated.
    virtual void Show() = 0;
    /// Makes it the active child.
    virtual void Activate() = 0;
    virtual void Maximize() = 0;
    /// Closes and releases the window; no call may follow.
    virtual void Close() = 0;
    virtual void SetPanelText(StatusPanel panel, const QString &text) = 0;
    virtual void EnablePanel(StatusPanel panel, bool enabled) = 0;
};

} // namespace Quillbox
