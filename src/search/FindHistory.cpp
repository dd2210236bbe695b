// SPDX-License-Identifier: GPL-3.0-or-later
#include "search/FindHistory.h"

namespace Quillbox {

void RememberText(QStringList &history, const QString &text) {
    if (text.isEmpty())
        return;
    history.removeAll(text);
    history.prepend(text);
    if (history.size() > MostRememberedTexts)
        history.resize(MostRememberedTexts);
}

} // namespace Quillbox
