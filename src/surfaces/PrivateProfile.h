// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <utility>
#include <vector>

namespace Quillbox {

/// Windows' private-profile files (INI text in the ANSI code page), read and written as the
/// system's own calls do. Paths are as stored or typed (see SystemPath).
class PrivateProfile {
  public:
    virtual ~PrivateProfile() = default;

    /// The value of `key` in `section` (both compared without regard to case), without surrounding
    /// blanks and without one pair of matching quotes. A missing file, section or key yields
    /// `defaultValue`; a present key with nothing after "=" yields the empty text. At most
    /// `capacity` - 1 characters are returned and a NUL ends the value.
    virtual QString ReadString(const QString &section, const QString &key,
                               const QString &defaultValue, int capacity, const QString &file) = 0;

    using KeyValue = std::pair<QString, QString>;
    /// Writes the values in their order; an existing key is replaced in place, a new one goes to
    /// the end of its section, a missing section or file is created. All other sections, keys,
    /// comments and bytes stay. The file afterwards holds all of the old or all of the new bytes.
    /// False when the file could not be written.
    virtual bool WriteStrings(const QString &section, const std::vector<KeyValue> &values,
                              const QString &file) = 0;
};

} // namespace Quillbox
