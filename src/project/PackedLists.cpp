// SPDX-License-Identifier: GPL-3.0-or-later
#include "project/PackedLists.h"

namespace Quillbox {
namespace {

constexpr char16_t Separator = u'|';
constexpr char16_t DoneMark = u'1';

/// Behind a mark stands the separator of the next description.
constexpr qsizetype MarkAndSeparator = 2;

} // namespace

QStringList UnpackOtherSources(const QString &packed) {
    return packed.isEmpty() ? QStringList() : packed.split(Separator);
}

QString PackOtherSources(const QStringList &paths) { return paths.join(Separator); }

std::vector<Task> UnpackToDoList(const QString &packed) {
    std::vector<Task> tasks;
    for (qsizetype start = 0;;) {
        const qsizetype separator = packed.indexOf(Separator, start);
        const qsizetype mark = separator + 1;
        if (separator < 0 || mark >= packed.size())
            return tasks;
        tasks.push_back({packed.sliced(start, separator - start), packed[mark] == DoneMark});
        start = mark + MarkAndSeparator;
    }
}

QString PackToDoList(const std::vector<Task> &tasks) {
    QString packed;
    for (const Task &task : tasks)
        packed += task.Description + (task.Done ? QStringLiteral("|1|") : QStringLiteral("|0|"));
    packed.chop(1);
    return packed;
}

} // namespace Quillbox
