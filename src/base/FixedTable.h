// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/RuntimeError.h"

#include <vector>

namespace Quillbox {

/// A table of fixed bounds, `First` to `Last` inclusive. Every slot exists from the start with its
/// default value; memory is taken when a slot is first written. An index outside the bounds is
/// run-time error 9.
template <typename Value, int First, int Last>
class FixedTable {
  public:
    static constexpr int FirstIndex = First;
    static constexpr int LastIndex = Last;

    const Value &operator[](int index) const {
        const std::size_t slot = SlotOf(index);
        return slot < Slots_.size() ? Slots_[slot] : Empty_;
    }

    Value &operator[](int index) {
        const std::size_t slot = SlotOf(index);
        if (Slots_.empty())
            Slots_.resize(SlotCount);
        return Slots_[slot];
    }

  private:
    static constexpr std::size_t SlotCount = Last - First + 1;

    static std::size_t SlotOf(int index) {
        if (index < First || index > Last)
            throw SubscriptOutOfRange();
        return static_cast<std::size_t>(index - First);
    }

    std::vector<Value> Slots_;
    inline static const Value Empty_{};
};

} // namespace Quillbox
