// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QLineEdit;

namespace Quillbox {

/// Lets into the text box only what a line of an ANSI file holds. What it cannot hold is replaced
/// as it is typed or pasted, where the person sees it.
void KeepOneAnsiLine(QLineEdit &box);

} // namespace Quillbox
