// SPDX-License-Identifier: GPL-3.0-or-later
#include "language/ColouringExtent.h"

#include <algorithm>

namespace Quillbox {

namespace {

std::int64_t AfterInsertion(std::int64_t place, std::int64_t position, std::int64_t length) {
    return position < place ? place + length : place;
}

std::int64_t AfterDeletion(std::int64_t place, std::int64_t position, std::int64_t length) {
    return position < place ? std::max(position, place - length) : place;
}

} // namespace

void ColouringExtent::Insert(std::int64_t position, std::int64_t length) {
    StaleEnd = AfterInsertion(StaleEnd, position, length);
    if (position >= OldEnd)
        return;
    OldEnd += length;
    ChangedEnd = std::max(AfterInsertion(ChangedEnd, position, length), position + length);
    ValidEnd = std::min(ValidEnd, position);
}

void ColouringExtent::Delete(std::int64_t position, std::int64_t length) {
    StaleEnd = AfterDeletion(StaleEnd, position, length);
    if (position >= OldEnd)
        return;
    OldEnd = AfterDeletion(OldEnd, position, length);
    ChangedEnd = std::max(AfterDeletion(ChangedEnd, position, length), position);
    ValidEnd = std::min(ValidEnd, position);
}

void ColouringExtent::Advance(std::int64_t position) {
    ValidEnd = position;
    OldEnd = std::max(OldEnd, position);
    // What lies behind followed on other colours than those that are right now before it; an edit
    // that comes before `position` later must not take the one for the other.
    ChangedEnd = ValidEnd == OldEnd ? 0 : std::max(ChangedEnd, ValidEnd);
}

bool ColouringExtent::MayJump(std::int64_t lineStart) const {
    return lineStart > ChangedEnd && lineStart < OldEnd;
}

void ColouringExtent::Jump() { Advance(OldEnd); }

void ColouringExtent::InvalidateFrom(std::int64_t position) {
    ValidEnd = std::min(ValidEnd, position);
    OldEnd = ValidEnd;
    ChangedEnd = 0;
    StaleEnd = std::min(StaleEnd, ValidEnd);
}

void ColouringExtent::InvalidateUserWords(std::int64_t shownStart) {
    InvalidateFrom(shownStart);
    StaleEnd = ValidEnd;
}

void ColouringExtent::Show(std::int64_t shownStart) {
    if (shownStart >= StaleEnd)
        return;
    ChangedEnd = std::max(ChangedEnd, StaleEnd);
    ValidEnd = std::min(ValidEnd, shownStart);
    StaleEnd = shownStart;
}

} // namespace Quillbox
