// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>

#include <vector>

namespace Quillbox {

/// The paths in a packed text: "a.bb|b.bb". An empty piece between two "|" is an empty path; the
/// empty text has none.
QStringList UnpackOtherSources(const QString &packed);

/// The inverse. A single empty path cannot be told from none.
QString PackOtherSources(const QStringList &paths);

struct Task {
    QString Description;
    bool Done = false;

    bool operator==(const Task &) const = default;
};

/// The tasks in a packed text: "una|1|otra|0". Any other mark than "1" means not done, the
/// character behind a mark is skipped whatever it is, and a description without a mark is dropped.
std::vector<Task> UnpackToDoList(const QString &packed);

/// The inverse for descriptions without "|".
QString PackToDoList(const std::vector<Task> &tasks);

} // namespace Quillbox
