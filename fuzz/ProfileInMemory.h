// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/AnsiText.h"
#include "base/ProfileText.h"
#include "surfaces/PrivateProfile.h"

namespace Quillbox {

/// One profile file in memory, read and written by the same rules as those of the disk.
class ProfileInMemory final : public PrivateProfile {
  public:
    explicit ProfileInMemory(const QByteArray &content)
        : Content(content) {}

    QByteArray Content;

    QString ReadString(const QString &section, const QString &key, const QString &defaultValue,
                       int capacity, const QString &) override {
        const auto value = FindProfileValue(Content, ToAnsi(section), ToAnsi(key));
        const QString text = (value ? FromAnsi(*value) : defaultValue).left(capacity - 1);
        const qsizetype nul = text.indexOf(QChar(u'\0'));
        return nul < 0 ? text : text.left(nul);
    }
    bool WriteStrings(const QString &section, const std::vector<KeyValue> &values,
                      const QString &) override {
        for (const auto &[key, value] : values)
            Content = WithProfileValue(Content, ToAnsi(section), ToAnsi(key), ToAnsi(value));
        return true;
    }
};

/// A value that stands in quotes loses another pair with every reading, one with blanks at its ends
/// loses them.
inline bool ComesBack(const QString &value) {
    const QByteArray bytes = ToAnsi(value);
    const bool quoted = bytes.size() > 1 && bytes.front() == bytes.back() &&
                        (bytes.front() == '"' || bytes.front() == '\'');
    return !quoted && WithoutBlanksAround(bytes) == bytes;
}

} // namespace Quillbox
