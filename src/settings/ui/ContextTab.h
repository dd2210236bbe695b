// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

namespace Quillbox {

/// The tab "Contexto" of frmSettings.
class ContextTab final : public QWidget {
    Q_OBJECT
  public:
    ContextTab();
};

} // namespace Quillbox
