// SPDX-License-Identifier: GPL-3.0-or-later
#include "fakes/SourceTree.h"

namespace Quillbox {

std::filesystem::path SourceTree() { return QUILLBOX_SOURCE_TREE; }

std::filesystem::path BuiltProgram() { return QUILLBOX_PROGRAM_DIR; }

} // namespace Quillbox
