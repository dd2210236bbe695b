// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "surfaces/Programs.h"

namespace Quillbox {

/// Of each system: its programs.
class SystemPrograms : public Programs {
  public:
    void Start(const QString &commandLine, WindowStyle style) override;
    void OpenAddress(const QString &address) override;
    void SetVariable(const QString &name, const QString &value) override;
};

} // namespace Quillbox
