// SPDX-License-Identifier: GPL-3.0-or-later
#include "reference/Reference.h"

namespace Quillbox {

bool IsCalled(const Theme &theme, const QString &name) {
    return theme.Key.compare(name, Qt::CaseInsensitive) == 0 ||
           theme.OtherKeys.contains(name, Qt::CaseInsensitive);
}

} // namespace Quillbox
