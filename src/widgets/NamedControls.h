// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QWidget>

namespace Quillbox {

/// Gives a control its name and its tooltip, which is also what assistive tools read out.
inline void NameControl(QWidget &control, const char *name, const char *toolTip = "") {
    control.setObjectName(QString::fromUtf8(name));
    control.setToolTip(QString::fromUtf8(toolTip));
    control.setAccessibleDescription(QString::fromUtf8(toolTip));
}

/// A control with its name, caption and tooltip. Texts are UTF-8.
template <typename Control>
Control *NewControl(const char *name, const char *caption, const char *toolTip = "") {
    auto *control = new Control(QString::fromUtf8(caption));
    NameControl(*control, name, toolTip);
    return control;
}

} // namespace Quillbox
