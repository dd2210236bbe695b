// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

namespace Quillbox {

/// The enumerator's name as the source spells it, the number of a value that has none. For the
/// enumerations of the surfaces; EnumNames.cpp lists them.
template <typename Enum>
std::string NameOf(Enum value);

} // namespace Quillbox
