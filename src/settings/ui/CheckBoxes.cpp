// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/ui/CheckBoxes.h"

#include "settings/SettingsCheckBox.h"
#include "widgets/Controls.h"

#include <QBoxLayout>
#include <QCheckBox>

namespace Quillbox {

void AddCheckBoxes(QBoxLayout &layout, SettingsFrame frame) {
    for (const SettingsCheckBox &box : SettingsCheckBoxes())
        if (box.Frame == frame)
            layout.addWidget(NewControl<QCheckBox>(box.Name, box.Caption, box.ToolTip));
}

} // namespace Quillbox
