// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/Numbers.h"

#include "base/Characters.h"
#include "base/RuntimeError.h"

#include <cmath>
#include <limits>

namespace Quillbox {
namespace {

bool IsBlank(QChar character) { return character == u' ' || character == u'\t'; }

/// -1 for a character that is no digit of any base.
int DigitValue(QChar character) {
    const char16_t code = character.unicode();
    if (IsDigit(code))
        return code - u'0';
    if (code >= u'A' && code <= u'F')
        return code - u'A' + 10;
    if (code >= u'a' && code <= u'f')
        return code - u'a' + 10;
    return -1;
}

/// Reads digits of `base` from the front of `text`, which is moved behind them.
double TakeDigits(QStringView &text, int base) {
    double value = 0;
    while (!text.isEmpty()) {
        const int digit = DigitValue(text.front());
        if (digit < 0 || digit >= base)
            break;
        value = value * base + digit;
        text = text.mid(1);
    }
    return value;
}

double TakeFraction(QStringView &text) {
    double value = 0;
    for (double weight = 0.1; !text.isEmpty(); weight /= 10) {
        const int digit = DigitValue(text.front());
        if (digit < 0 || digit > 9)
            break;
        value += digit * weight;
        text = text.mid(1);
    }
    return value;
}

double DecimalNumber(QStringView text) {
    double sign = 1;
    if (!text.isEmpty() && (text.front() == u'-' || text.front() == u'+')) {
        sign = text.front() == u'-' ? -1 : 1;
        text = text.mid(1);
    }
    double value = TakeDigits(text, 10);
    if (!text.isEmpty() && text.front() == u'.') {
        text = text.mid(1);
        value += TakeFraction(text);
    }
    return sign * value;
}

template <typename Integer>
Integer RoundedTo(double number) {
    const double rounded = std::nearbyint(number); // the default mode takes halves to even
    if (!(rounded >= std::numeric_limits<Integer>::min() &&
          rounded <= std::numeric_limits<Integer>::max()))
        throw Overflow();
    return static_cast<Integer>(rounded);
}

} // namespace

double LeadingNumber(QStringView text) {
    while (!text.isEmpty() && IsBlank(text.front()))
        text = text.mid(1);
    if (text.startsWith(u"&H", Qt::CaseInsensitive)) {
        text = text.mid(2);
        return TakeDigits(text, 16);
    }
    if (text.startsWith(u"&O", Qt::CaseInsensitive)) {
        text = text.mid(2);
        return TakeDigits(text, 8);
    }
    return DecimalNumber(text);
}

std::int32_t ToLong(double number) { return RoundedTo<std::int32_t>(number); }

std::uint8_t ToByte(double number) { return RoundedTo<std::uint8_t>(number); }

} // namespace Quillbox
