// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QBoxLayout;

namespace Quillbox {

enum class SettingsFrame;

/// Adds the check boxes that stand in a frame of frmSettings, in their order.
void AddCheckBoxes(QBoxLayout &layout, SettingsFrame frame);

} // namespace Quillbox
