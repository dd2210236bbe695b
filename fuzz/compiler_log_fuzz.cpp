// SPDX-License-Identifier: GPL-3.0-or-later
// Any output of a compiler is either passed over, located, or refused with run-time error 5.
#include "base/AnsiText.h"
#include "base/RuntimeError.h"
#include "build/CompilerLog.h"

#include <cstdint>
#include <cstdlib>

using namespace Quillbox;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    const QString log = FromAnsi(QByteArrayView(data, static_cast<qsizetype>(size)));
    const auto line = FindErrorLine(log);
    if (!line)
        return 0;
    try {
        const ErrorLocation location = LocateError(*line);
        if (!line->contains(location.FileText) || !line->contains(location.LineText))
            std::abort();
    } catch (const RuntimeError &error) {
        if (error.Number != InvalidArgument().Number)
            std::abort();
    }
    return 0;
}
