// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QString>
#include <QStringView>

#include <array>
#include <string>
#include <string_view>

namespace Quillbox {

/// The 256 characters of the system's ANSI code page, by byte value. A byte that the code page
/// leaves without a character stands for the control character of the same number, so that every
/// byte has exactly one character and comes back as it was. Each system defines it.
const std::array<char16_t, 256> &AnsiCodePage();

/// True when the code page has a byte for `character`.
bool HasAnsiByte(char32_t character);

QString FromAnsi(QByteArrayView bytes);
/// A character that the code page lacks becomes "?".
QByteArray ToAnsi(QStringView text);

/// `text` as one line of an ANSI file holds it: a character that the code page lacks becomes "?", a
/// line end a blank.
QString OneAnsiLine(QString text);

/// For texts held as UTF-8: how many bytes of UTF-8 the ANSI `bytes` need.
std::size_t Utf8SizeOfAnsi(std::string_view bytes);
/// Appends; with `Utf8SizeOfAnsi` reserved beforehand nothing is allocated.
void AppendAnsiAsUtf8(std::string_view bytes, std::string &utf8);
/// Appends. `utf8` must hold whole characters; a character that the code page lacks and a byte that
/// is no UTF-8 become "?".
void AppendUtf8AsAnsi(std::string_view utf8, std::string &bytes);

} // namespace Quillbox
