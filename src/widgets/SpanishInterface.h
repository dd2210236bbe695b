// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QTranslator>

namespace Quillbox {

/// Qt's own texts (buttons, file choosers) in Spanish. They are read from the folder "translations"
/// of the program folder, so that a copied program has them, otherwise from where Qt is installed.
class SpanishInterface {
  public:
    explicit SpanishInterface(const QString &appDir);

  private:
    QTranslator Translator_;
};

} // namespace Quillbox
