// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>

namespace Quillbox {

inline constexpr qsizetype MostRememberedTexts = 20;

/// Puts `text` first, once; the oldest ones go. An empty text is nothing to remember.
void RememberText(QStringList &history, const QString &text);

} // namespace Quillbox
