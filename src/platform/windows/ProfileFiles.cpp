// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/ProfileFiles.h"

#include "base/AnsiText.h"
#include "platform/windows/WindowsApi.h"

#include <QFileInfo>

namespace Quillbox {

namespace {

/// A name without a folder would mean a file in the system's own folder.
QByteArray AbsoluteName(const QString &file) {
    return ToAnsi(QDir::toNativeSeparators(QFileInfo(file).absoluteFilePath()));
}

} // namespace

QString ProfileFiles::ReadString(const QString &section, const QString &key,
                                 const QString &defaultValue, int capacity, const QString &file) {
    if (capacity <= 0)
        return QString();
    QByteArray value(capacity, '\0');
    const DWORD size = ::GetPrivateProfileStringA(
        ToAnsi(section).constData(), ToAnsi(key).constData(), ToAnsi(defaultValue).constData(),
        value.data(), static_cast<DWORD>(capacity), AbsoluteName(file).constData());
    value.truncate(static_cast<qsizetype>(size));
    return FromAnsi(value);
}

bool ProfileFiles::WriteStrings(const QString &section, const std::vector<KeyValue> &values,
                                const QString &file) {
    const QByteArray name = AbsoluteName(file);
    for (const auto &[key, value] : values) {
        if (::WritePrivateProfileStringA(ToAnsi(section).constData(), ToAnsi(key).constData(),
                                         ToAnsi(value).constData(), name.constData()) == 0)
            return false;
    }
    return true;
}

} // namespace Quillbox
