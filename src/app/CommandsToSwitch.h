// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "documents/CommandState.h"

namespace Quillbox {

/// What the command state switches, out of the table of commands. A tool button needs a document
/// when its menu item, or the menu in which that stands, needs one.
SwitchedCommands CommandsToSwitch();

} // namespace Quillbox
