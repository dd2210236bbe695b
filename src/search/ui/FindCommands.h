// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace Quillbox {

class ScintillaEditor;
struct FindState;

/// Carries out what `editor` asks for: the find dialog, which all editors share, and finding again.
/// The dialog works on the editor that got the keyboard last. Both must outlive the connection.
void ConnectFinding(ScintillaEditor &editor, FindState &state);

} // namespace Quillbox
