// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/ColorInsertion.h"

#include "base/Characters.h"
#include "surfaces/Dialogs.h"
#include "surfaces/EditorControl.h"

#include <QStringList>

#include <array>

namespace Quillbox {
namespace {

/// A colour's hexadecimal digits: two each for blue, green and red.
constexpr int ColorDigits = 6;

int ValueOfDigit(QChar digit) {
    if (IsDigit(digit))
        return digit.unicode() - u'0';
    return digit >= u'A' && digit <= u'F' ? digit.unicode() - u'A' + 10 : 0;
}

/// Empty unless the selection lies in one line.
QString SelectedText(const EditorContents &editor) {
    const auto [start, end] = editor.GetSel();
    if (start.Line != end.Line)
        return {};
    return editor.LineText(start.Line)
        .mid(start.Column.Value, end.Column.Value - start.Column.Value);
}

} // namespace

QString HexToDec(const QString &digits) {
    return QString::number(ValueOfDigit(digits.at(0)) * 16 + ValueOfDigit(digits.at(1)));
}

QString ColorText(Color color) {
    QString digits = QString::number(color.Value, 16).toUpper();
    while (digits.size() < ColorDigits)
        digits.prepend(QStringLiteral("00"));
    const auto part = [&](int position) { return HexToDec(digits.mid(position, 2)); };
    return part(4) + u',' + part(2) + u',' + part(0);
}

std::optional<Color> FindColor(const QString &text) {
    const QStringList parts = text.split(u',');
    std::array<int, 3> values{};
    if (parts.size() != static_cast<qsizetype>(values.size()))
        return std::nullopt;
    for (std::size_t part = 0; part < values.size(); ++part) {
        bool isNumber = false;
        values[part] = parts[static_cast<qsizetype>(part)].trimmed().toInt(&isNumber);
        if (!isNumber || values[part] < 0 || values[part] > 255)
            return std::nullopt;
    }
    return RgbColor(values[0], values[1], values[2]);
}

ColorInsertion::ColorInsertion(Dialogs &dialogs)
    : Dialogs_(dialogs) {}

void ColorInsertion::mnuEdicion_InsertarRGB_Click(EditorControl &editor) {
    const auto chosen = Dialogs_.ShowColor(FindColor(SelectedText(editor)).value_or(Last_));
    if (!chosen)
        return;
    Last_ = *chosen;
    editor.ReplaceSel(ColorText(*chosen));
}

} // namespace Quillbox
