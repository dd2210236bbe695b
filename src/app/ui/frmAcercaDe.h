// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDialog>

class QVBoxLayout;

namespace Quillbox {

/// The about box. Shown until it is closed.
class frmAcercaDe final : public QDialog {
    Q_OBJECT
  public:
    explicit frmAcercaDe(QWidget *owner);

  private:
    void BuildHead(QVBoxLayout &layout);
    void BuildTexts(QVBoxLayout &layout);
    void BuildButton(QVBoxLayout &layout);
};

} // namespace Quillbox
