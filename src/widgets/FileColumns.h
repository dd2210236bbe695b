// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QIdentityProxyModel>

class QDateTime;

namespace Quillbox {

/// The size of a file as it is written in Spain: "812 bytes", "12 kB", "1,5 MB".
QString FileSizeText(qint64 bytes);

/// When a file was changed as it is written in Spain: "21/11/2026 14:05".
QString FileTimeText(const QDateTime &time);

/// The files of a chooser with sizes and dates in Spanish. Qt writes them in the language of the
/// system, whatever the program's is.
class FileColumns final : public QIdentityProxyModel {
  public:
    using QIdentityProxyModel::QIdentityProxyModel;
    QVariant data(const QModelIndex &index, int role) const override;
};

} // namespace Quillbox
