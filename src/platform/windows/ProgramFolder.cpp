// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/ProgramFolder.h"

#include "platform/windows/WindowsApi.h"

#include <QFileInfo>

namespace Quillbox {

QString ProgramFolder() {
    constexpr DWORD longestPath = 32768;
    std::wstring name(longestPath, L'\0');
    name.resize(::GetModuleFileNameW(nullptr, name.data(), longestPath));
    return QDir::toNativeSeparators(QFileInfo(QString::fromStdWString(name)).path());
}

} // namespace Quillbox
