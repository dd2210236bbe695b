// SPDX-License-Identifier: GPL-3.0-or-later
#include "checker/StandardOutput.h"

#include <cstdio>
#include <fcntl.h>
#include <io.h>

namespace Quillbox {

void WriteToStandardOutput(std::string_view bytes) {
    _setmode(_fileno(stdout), _O_BINARY);
    std::fwrite(bytes.data(), 1, bytes.size(), stdout);
}

} // namespace Quillbox
