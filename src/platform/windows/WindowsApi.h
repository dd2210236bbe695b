// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#ifndef NOMINMAX
#define NOMINMAX
#endif
#ifndef WIN32_LEAN_AND_MEAN
#define WIN32_LEAN_AND_MEAN
#endif
#include <windows.h>

#include <QDir>
#include <QString>

#include <string>

namespace Quillbox {

/// `path` as the system's calls take it.
inline std::wstring NativePath(const QString &path) {
    return QDir::toNativeSeparators(path).toStdWString();
}

} // namespace Quillbox
