// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QProxyStyle>

namespace Quillbox {

/// The desktop's style without pictures on the buttons of questions and choosers: they are small
/// bitmaps that blur on fine screens.
class PlainButtonStyle final : public QProxyStyle {
  public:
    int styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                  QStyleHintReturn *returnData) const override {
        return hint == SH_DialogButtonBox_ButtonsHaveIcons
                   ? 0
                   : QProxyStyle::styleHint(hint, option, widget, returnData);
    }
};

} // namespace Quillbox
