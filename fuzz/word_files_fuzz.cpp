// SPDX-License-Identifier: GPL-3.0-or-later
// Whatever a word file holds, its lines put together again are the file without its line ends.
#include "base/AnsiText.h"
#include "base/TextItems.h"

#include <cstdint>
#include <cstdlib>

using namespace Quillbox;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    QString text = FromAnsi(QByteArrayView(data, static_cast<qsizetype>(size)));
    const QString lines = WholeLines(text).join(QString());
    for (const QString &item : FreeFormatItems(text))
        if (!text.contains(item))
            std::abort();
    if (text.remove(u'\r').remove(u'\n') != lines)
        std::abort();
    return 0;
}
