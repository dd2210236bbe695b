// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>

#include <optional>

namespace Quillbox {

/// The value of `key` in `section` of the profile text `content`, without surrounding blanks and
/// without one pair of matching quotes. Only the first section of that name counts, and in it the
/// first key. Names compare without regard to case. Empty when there is no such key.
std::optional<QByteArray> FindProfileValue(const QByteArray &content, const QByteArray &section,
                                           const QByteArray &key);

/// `content` with another value of `key`. An existing key is replaced in place, a new one goes
/// behind the last line of its section, a missing section to the end. All other bytes stay.
QByteArray WithProfileValue(const QByteArray &content, const QByteArray &section,
                            const QByteArray &key, const QByteArray &value);

/// `bytes` without blanks and tabs at both ends.
QByteArray WithoutBlanksAround(const QByteArray &bytes);

} // namespace Quillbox
