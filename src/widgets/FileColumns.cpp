// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/FileColumns.h"

#include <QDateTime>
#include <QFileSystemModel>
#include <QLocale>

namespace Quillbox {
namespace {

constexpr int SizeColumn = 1;
constexpr int TimeColumn = 3;

QLocale Spanish() { return {QLocale::Spanish, QLocale::Spain}; }

} // namespace

QString FileSizeText(qint64 bytes) {
    constexpr qint64 Megabyte = 1'000'000;
    const int decimals = bytes < Megabyte ? 0 : 1;
    return Spanish().formattedDataSize(bytes, decimals, QLocale::DataSizeSIFormat);
}

QString FileTimeText(const QDateTime &time) {
    return Spanish().toString(time, QStringLiteral("dd/MM/yyyy HH:mm"));
}

QVariant FileColumns::data(const QModelIndex &index, int role) const {
    if (role == Qt::DisplayRole && (index.column() == SizeColumn || index.column() == TimeColumn)) {
        const auto *files = static_cast<const QFileSystemModel *>(sourceModel());
        const QModelIndex file = mapToSource(index);
        if (index.column() == TimeColumn)
            return FileTimeText(files->lastModified(file));
        if (!files->isDir(file))
            return FileSizeText(files->size(file));
    }
    return QIdentityProxyModel::data(index, role);
}

} // namespace Quillbox
