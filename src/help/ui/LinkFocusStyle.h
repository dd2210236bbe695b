// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QProxyStyle>
#include <QStyleHintReturn>
#include <QTextCharFormat>

namespace Quillbox {

/// The link that has the keyboard stands on a tint of the selection's colour: the usual dotted line
/// is easily overlooked in a page.
class LinkFocusStyle final : public QProxyStyle {
  public:
    int styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                  QStyleHintReturn *returnData) const override {
        const int answer = QProxyStyle::styleHint(hint, option, widget, returnData);
        if (hint != SH_TextControl_FocusIndicatorTextCharFormat || !returnData || !widget)
            return answer;
        constexpr int Opacity = 90;
        const QColor color = widget->palette().color(QPalette::Active, QPalette::Highlight);
        QColor tint = color;
        tint.setAlpha(Opacity);
        QTextCharFormat format;
        format.setBackground(tint);
        format.setProperty(QTextFormat::OutlinePen, QPen(color, 1));
        static_cast<QStyleHintReturnVariant *>(returnData)->variant = QTextFormat(format);
        return answer;
    }
};

} // namespace Quillbox
