// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "surfaces/Folders.h"

#include <QComboBox>

namespace Quillbox {

/// The drive list. Its drives are looked up anew each time that it drops down.
class DriveList final : public QComboBox {
    Q_OBJECT
  public:
    DriveList(Folders &folders, QWidget *parent);

    /// Empty without a selection.
    QString Selected() const { return currentData().toString(); }
    bool IsDrive(const QString &path) const { return findData(path) >= 0; }
    /// Nothing is signalled; a path that is no drive changes nothing.
    void Select(const QString &path);
    /// Selects the drive that holds the folder.
    void SelectHolding(const QString &folder);

    void showPopup() override;

  signals:
    void GotFocus();
    /// The person chose another drive, which is the selected one now.
    void Chosen();

  protected:
    void focusInEvent(QFocusEvent *event) override;

  private:
    void Fill();

    void Choose();

    Folders &Folders_;
    std::vector<Drive> Drives_;
    QString SelectedBefore_; ///< the last one chosen or selected, though it may be gone
};

} // namespace Quillbox
