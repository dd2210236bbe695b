// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

class QWidget;

namespace Quillbox {

/// Shows `text` for some seconds at the lower edge of `view`, in place of a notice that is there
/// already; an empty text takes that away. It takes no clicks and no keyboard.
void ShowFindNotice(QWidget &view, const QString &text);

} // namespace Quillbox
