// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/Color.h"

#include <QWidget>

class QFrame;
class QGroupBox;
class QLabel;
class QLayout;
class QPushButton;

namespace Quillbox {

class ChoiceList;
class TabSizeBox;
struct FontChoice;

/// The tab "Editor" of frmSettings.
class EditorTab final : public QWidget {
    Q_OBJECT
  public:
    EditorTab();

    void SetSample(Color color);
    void SetFontSample(const QString &caption, const FontChoice &font);

    ChoiceList *lstItems;
    QFrame *ptbMuestra;
    QPushButton *cmdCambiarColor;
    ChoiceList *lstStyles;
    QLabel *lblFont;
    QPushButton *cmdCambiarFuente;
    TabSizeBox *spnTabSize;

  private:
    QLayout *ItemColumn();
    QGroupBox *FontGroup();
    QGroupBox *OtherGroup();
};

} // namespace Quillbox
