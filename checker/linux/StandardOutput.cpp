// SPDX-License-Identifier: GPL-3.0-or-later
#include "checker/StandardOutput.h"

#include <cstdio>

namespace Quillbox {

void WriteToStandardOutput(std::string_view bytes) {
    std::fwrite(bytes.data(), 1, bytes.size(), stdout);
}

} // namespace Quillbox
