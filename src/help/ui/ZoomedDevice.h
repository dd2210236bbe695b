// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPaintDevice>
#include <QWidget>

namespace Quillbox {

/// A widget's screen as a text layout sees it, with a resolution that is `Factor` times its own. A
/// layout that uses it makes everything larger without a change of the page, but for letters whose
/// size a page gives in pixels. Nothing can be painted on it.
class ZoomedDevice final : public QPaintDevice {
  public:
    explicit ZoomedDevice(const QWidget &widget)
        : Widget_(widget) {}

    double Factor = 1;

    QPaintEngine *paintEngine() const override { return nullptr; }

  protected:
    int metric(PaintDeviceMetric metric) const override {
        switch (metric) {
        case PdmDpiX:
        case PdmPhysicalDpiX:
            return qRound(Widget_.logicalDpiX() * Factor);
        case PdmDpiY:
        case PdmPhysicalDpiY:
            return qRound(Widget_.logicalDpiY() * Factor);
        case PdmWidth:
            return Widget_.width();
        case PdmHeight:
            return Widget_.height();
        case PdmDevicePixelRatio:
            return qRound(Widget_.devicePixelRatioF());
        case PdmDevicePixelRatioScaled:
            return qRound(Widget_.devicePixelRatioF() * devicePixelRatioFScale());
        default:
            return QPaintDevice::metric(metric);
        }
    }

  private:
    const QWidget &Widget_;
};

} // namespace Quillbox
