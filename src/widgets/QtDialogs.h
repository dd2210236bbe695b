// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "surfaces/Dialogs.h"

#include <QString>

namespace Quillbox {

/// Message boxes and choosers over the active window.
class QtDialogs final : public Dialogs {
  public:
    MessageAnswer ShowMessage(const Message &message) override;
    std::optional<QString> ShowOpen(const FileChooser &chooser) override;
    std::optional<QString> ShowSave(const FileChooser &chooser) override;
    std::optional<QString> ShowInput(const InputBox &box) override;
    std::optional<Color> ShowColor(Color preset) override;
    std::optional<FontChoice> ShowFont(const FontChoice &preset) override;

  private:
    QString Folder_; ///< where the last chosen file was
};

} // namespace Quillbox
