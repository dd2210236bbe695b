// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace Quillbox {

class DocumentWindow;
struct Settings;

/// Gives a document's editor the colours, styles, font, tab size and line numbers of the settings,
/// and empties the quick-help panel when quick help is switched off.
void ApplyEditorSettings(DocumentWindow &window, const Settings &settings);

} // namespace Quillbox
