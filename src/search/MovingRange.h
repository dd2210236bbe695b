// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <algorithm>
#include <cstdint>

namespace Quillbox {

/// A stretch of a text in bytes that moves with edits. What is put in at its very start or end
/// belongs to it.
struct MovingRange {
    std::int64_t Start = 0;
    std::int64_t End = 0;
    bool operator==(const MovingRange &) const = default;

    void Insert(std::int64_t position, std::int64_t length) {
        Start += position < Start ? length : 0;
        End += position <= End ? length : 0;
    }
    void Delete(std::int64_t position, std::int64_t length) {
        Start = Moved(Start, position, length);
        End = Moved(End, position, length);
    }

  private:
    static std::int64_t Moved(std::int64_t place, std::int64_t position, std::int64_t length) {
        return place <= position ? place : std::max(position, place - length);
    }
};

} // namespace Quillbox
