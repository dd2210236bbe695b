// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>

namespace Quillbox {

/// The top folder of the tree that the tests were built from: golden cases, data and examples lie
/// in it.
std::filesystem::path SourceTree();

/// The folder of the program that was built with the tests. Its Spanish texts are there.
std::filesystem::path BuiltProgram();

} // namespace Quillbox
