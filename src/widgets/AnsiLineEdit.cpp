// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/AnsiLineEdit.h"

#include "base/AnsiText.h"

#include <QLineEdit>
#include <QValidator>

#include <algorithm>

namespace Quillbox {
namespace {

/// A validator may change what it is given.
class AnsiLineValidator final : public QValidator {
  public:
    using QValidator::QValidator;

    State validate(QString &text, int &position) const override {
        text = OneAnsiLine(text);
        position = std::min(position, static_cast<int>(text.size()));
        return Acceptable;
    }
};

} // namespace

void KeepOneAnsiLine(QLineEdit &box) { box.setValidator(new AnsiLineValidator(&box)); }

} // namespace Quillbox
