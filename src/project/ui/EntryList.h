// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QListWidget>

#include <optional>

namespace Quillbox {

/// A list of one column that is used with mouse and keyboard alike. An entry that has the keyboard
/// is always the selected one.
class EntryList final : public QListWidget {
    Q_OBJECT
  public:
    explicit EntryList(const QString &name, QWidget *parent);

    /// Adds a last entry. Its tooltip is the whole text, which the list may have no room for.
    QListWidgetItem &AddEntry(const QString &text);
    /// The selected entry, counted from 0.
    std::optional<int> Selected() const;
    QStringList Texts() const;

  signals:
    /// Return, or a double-click anywhere but on a check mark.
    void Activated();
    void DeletePressed();

  protected:
    void keyPressEvent(QKeyEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;

  private:
    bool IsOnCheckMark(const QPoint &place) const;
};

} // namespace Quillbox
