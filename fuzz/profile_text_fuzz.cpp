// SPDX-License-Identifier: GPL-3.0-or-later
// A value written into any file is read back, and a second writing changes nothing.
#include "Fuzz.h"

#include "base/ProfileText.h"

using namespace Quillbox;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    const QByteArray content = BytesOf(data, size);
    FindProfileValue(content, "Quillbox", "Font");
    const QByteArray once = WithProfileValue(content, "Quillbox", "Font", "Courier");
    Require(FindProfileValue(once, "Quillbox", "Font") == QByteArray("Courier"));
    Require(WithProfileValue(once, "Quillbox", "Font", "Courier") == once);
    return 0;
}
