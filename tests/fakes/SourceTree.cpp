// SPDX-License-Identifier: GPL-3.0-or-later
#include "fakes/SourceTree.h"

namespace Quillbox {

std::filesystem::path SourceTree() { return QUILLBOX_SOURCE_TREE; }

} // namespace Quillbox
