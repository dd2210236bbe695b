// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QTranslator>

namespace Quillbox {

/// Qt's own texts (buttons, file choosers, what is wrong with an expression) in Spanish. They are
/// read from the folder "translations" of the program folder, so that a copied program has them;
/// Qt's are otherwise read from where it is installed. Where Quillbox says a text better than Qt's
/// Spanish does, or Qt has none, Quillbox's is shown.
class SpanishInterface {
  public:
    explicit SpanishInterface(const QString &appDir);

  private:
    QTranslator Qts_;
    QTranslator Own_;
};

} // namespace Quillbox
