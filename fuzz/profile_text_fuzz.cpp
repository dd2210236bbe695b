// SPDX-License-Identifier: GPL-3.0-or-later
// A value written into any file is read back, and a second writing changes nothing.
#include "base/ProfileText.h"

#include <cstdint>
#include <cstdlib>

using namespace Quillbox;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    const QByteArray content(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    FindProfileValue(content, "Quillbox", "Font");
    const QByteArray once = WithProfileValue(content, "Quillbox", "Font", "Courier");
    if (FindProfileValue(once, "Quillbox", "Font") != QByteArray("Courier"))
        std::abort();
    if (WithProfileValue(once, "Quillbox", "Font", "Courier") != once)
        std::abort();
    return 0;
}
