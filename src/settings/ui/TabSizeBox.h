// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QSpinBox>

#include <functional>

class QKeyEvent;
class QLineEdit;

namespace Quillbox {

/// The spinner spnTabSize with the text box txtTabSize in it. They look like one control but know
/// nothing of one another's value: the rules couple them. The text box has the keyboard for both.
/// The spinner's own text box would turn what is typed into its number, and take Backspace.
class TabSizeBox final : public QSpinBox {
    Q_OBJECT
  public:
    TabSizeBox();

    QLineEdit *txtTabSize;
    /// Whether the text box takes a character.
    std::function<bool(int characterCode)> CharacterTyped;

    bool eventFilter(QObject *watched, QEvent *event) override;
    void stepBy(int steps) override;

  signals:
    void SpinUp();
    void SpinDown();

  protected:
    void initStyleOption(QStyleOptionSpinBox *option) const override;
    void resizeEvent(QResizeEvent *event) override;

  private:
    bool TakesOver(const QKeyEvent &key);
};

} // namespace Quillbox
