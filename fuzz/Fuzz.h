// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>

#include <cstdint>
#include <cstdlib>

namespace Quillbox {

/// What holds for every input; the fuzzer keeps one for which it does not.
inline void Require(bool holds) {
    if (!holds)
        std::abort();
}

inline QByteArray BytesOf(const std::uint8_t *data, std::size_t size) {
    return {reinterpret_cast<const char *>(data), static_cast<qsizetype>(size)};
}

/// Cuts the first line off, without its line feed.
inline QByteArray TakeLine(QByteArray &rest) {
    const qsizetype feed = rest.indexOf('\n');
    const QByteArray line = rest.left(feed);
    rest = feed < 0 ? QByteArray() : rest.mid(feed + 1);
    return line;
}

} // namespace Quillbox
