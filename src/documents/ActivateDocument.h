// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace Quillbox {

struct Document;

/// Brings the document's window to the front, maximised, with the keyboard in its editor.
void ActivateDocument(const Document &document);

} // namespace Quillbox
