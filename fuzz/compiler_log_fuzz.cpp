// SPDX-License-Identifier: GPL-3.0-or-later
// Any output of a compiler is either passed over, located, or refused with run-time error 5.
#include "Fuzz.h"

#include "base/AnsiText.h"
#include "base/RuntimeError.h"
#include "build/MessageShapes.h"

using namespace Quillbox;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    const QString log = FromAnsi(BytesOf(data, size));
    const auto line = FindErrorLine(log);
    if (!line)
        return 0;
    try {
        const ErrorLocation location = LocateError(*line);
        Require(line->contains(location.FileText) && line->contains(location.LineText));
    } catch (const RuntimeError &error) {
        Require(error.Number == InvalidArgument().Number);
    }
    return 0;
}
