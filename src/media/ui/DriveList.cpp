// SPDX-License-Identifier: GPL-3.0-or-later
#include "media/ui/DriveList.h"

#include "media/FolderPaths.h"

#include <QFocusEvent>
#include <QSignalBlocker>

namespace Quillbox {
namespace {

constexpr int LettersShown = 20;

QString CaptionOf(const Drive &drive) {
    return drive.Label.isEmpty() ? drive.Path
                                 : QStringLiteral("%1 [%2]").arg(drive.Path, drive.Label);
}

} // namespace

DriveList::DriveList(Folders &folders, QWidget *parent)
    : QComboBox(parent)
    , Folders_(folders) {
    setObjectName(QStringLiteral("drvUnidad"));
    setToolTip(QStringLiteral("Unidades"));
    setSizeAdjustPolicy(AdjustToMinimumContentsLengthWithIcon);
    setMinimumContentsLength(LettersShown);
    Fill();
    connect(this, &QComboBox::activated, this, &DriveList::Choose);
}

void DriveList::Select(const QString &path) {
    const QSignalBlocker quiet(this);
    if (!IsDrive(path))
        return;
    setCurrentIndex(findData(path));
    SelectedBefore_ = path;
}

void DriveList::SelectHolding(const QString &folder) { Select(FindDriveHolding(folder, Drives_)); }

void DriveList::showPopup() {
    const QString selected = Selected();
    Fill();
    Select(selected);
    QComboBox::showPopup();
}

/// The keyboard comes back from the list's own drop-down part while a choice is under way.
void DriveList::focusInEvent(QFocusEvent *event) {
    QComboBox::focusInEvent(event);
    if (event->reason() != Qt::PopupFocusReason)
        emit GotFocus();
}

/// A drive that is chosen again must not lead out of its folders back to its root.
void DriveList::Choose() {
    if (Selected() == SelectedBefore_)
        return;
    SelectedBefore_ = Selected();
    emit Chosen();
}

void DriveList::Fill() {
    const QSignalBlocker quiet(this);
    Drives_ = Folders_.Drives();
    clear();
    for (const Drive &drive : Drives_)
        addItem(CaptionOf(drive), drive.Path);
}

} // namespace Quillbox
