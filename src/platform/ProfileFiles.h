// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "surfaces/PrivateProfile.h"

namespace Quillbox {

/// The private-profile files of the disk, on every system. QSettings drops comments, escapes
/// values and knows no ANSI code page.
class ProfileFiles : public PrivateProfile {
  public:
    QString ReadString(const QString &section, const QString &key, const QString &defaultValue,
                       int capacity, const QString &file) override;
    bool WriteStrings(const QString &section, const std::vector<KeyValue> &values,
                      const QString &file) override;
};

} // namespace Quillbox
