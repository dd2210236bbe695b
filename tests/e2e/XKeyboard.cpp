// SPDX-License-Identifier: GPL-3.0-or-later
#include "XKeyboard.h"

#include <QStringList>

#include <stdexcept>

namespace Quillbox {
namespace {

using Symbol = std::uint32_t;

constexpr Symbol Shift = 0xFFE1;
constexpr Symbol AltGr = 0xFE03;

struct NamedSymbol {
    const char *Name;
    Symbol Value;
};

/// What keys are called that stand for no character.
constexpr NamedSymbol Names[] = {
    {"shift", Shift},      {"ctrl", 0xFFE3},  {"alt", 0xFFE9},        {"Return", 0xFF0D},
    {"Escape", 0xFF1B},    {"Tab", 0xFF09},   {"space", ' '},         {"Delete", 0xFFFF},
    {"BackSpace", 0xFF08}, {"Home", 0xFF50},  {"End", 0xFF57},        {"Left", 0xFF51},
    {"Up", 0xFF52},        {"Right", 0xFF53}, {"Down", 0xFF54},       {"F1", 0xFFBE},
    {"F2", 0xFFBF},        {"F3", 0xFFC0},    {"F4", 0xFFC1},         {"F5", 0xFFC2},
    {"F6", 0xFFC3},        {"F7", 0xFFC4},    {"dead_acute", 0xFE51}, {"dead_diaeresis", 0xFE57},
};

/// A dead key, the accent that it puts on the next character, and what it gives with the space bar.
struct DeadKey {
    Symbol Value;
    char16_t Accent;
    char16_t Alone;
};

constexpr DeadKey DeadKeys[] = {
    {0xFE50, 0x0300, u'`'}, {0xFE51, 0x0301, u'´'}, {0xFE52, 0x0302, u'^'},
    {0xFE53, 0x0303, u'~'}, {0xFE57, 0x0308, u'¨'},
};

/// Latin-1 characters are their own symbols.
Symbol SymbolOf(QChar character) {
    return character.unicode() < 0x100 ? character.unicode() : 0x01000000U + character.unicode();
}

Symbol SymbolOf(const QString &name) {
    for (const NamedSymbol &named : Names)
        if (name == QLatin1String(named.Name))
            return named.Value;
    return name.size() == 1 ? SymbolOf(name.front()) : 0;
}

/// Of the symbols that a key has, those of the two others belong to a second layout.
struct Level {
    std::size_t Column;
    std::vector<Symbol> Held;
};
const Level Levels[] = {{0, {}}, {1, {Shift}}, {4, {AltGr}}, {5, {Shift, AltGr}}};

} // namespace

XKeyboard::XKeyboard(XDisplay &display)
    : Display_(display) {
    const XDisplay::KeyMap map = display.ReadKeyMap();
    for (const Level &level : Levels) {
        std::vector<std::uint8_t> held;
        for (const Symbol symbol : level.Held)
            held.push_back(KeyOf(symbol));
        for (std::size_t i = level.Column; i < map.Symbols.size(); i += map.SymbolsPerKey)
            if (level.Column < map.SymbolsPerKey)
                Strokes_.insert(
                    {map.Symbols[i],
                     {static_cast<std::uint8_t>(map.FirstKeyCode + i / map.SymbolsPerKey), held}});
    }
}

std::uint8_t XKeyboard::KeyOf(Symbol symbol) const {
    const auto stroke = Strokes_.find(symbol);
    return stroke == Strokes_.end() ? 0 : stroke->second.Key;
}

void XKeyboard::Press(const QString &key) {
    QStringList names = key.split(u'+');
    const auto last = Strokes_.find(SymbolOf(names.takeLast()));
    if (last == Strokes_.end())
        throw std::invalid_argument("no such key: " + key.toStdString());
    Stroke stroke = last->second;
    for (const QString &name : names)
        stroke.Held.push_back(KeyOf(SymbolOf(name)));
    Do(stroke);
}

bool XKeyboard::Type(QChar character) {
    if (Has(SymbolOf(character))) {
        Do(Strokes_.at(SymbolOf(character)));
        return true;
    }
    const QString parts = QString(character).normalized(QString::NormalizationForm_D);
    for (const DeadKey &dead : DeadKeys) {
        const bool isAccent = character == dead.Alone;
        if (!isAccent && (parts.size() != 2 || parts[1] != dead.Accent))
            continue;
        const Symbol base = isAccent ? Symbol{' '} : SymbolOf(parts[0]);
        if (!Has(dead.Value) || !Has(base))
            return false;
        Do(Strokes_.at(dead.Value));
        Do(Strokes_.at(base));
        return true;
    }
    return false;
}

void XKeyboard::Do(const Stroke &stroke) {
    for (const std::uint8_t held : stroke.Held)
        Display_.MoveKey(held, Motion::Press);
    Display_.MoveKey(stroke.Key, Motion::Press);
    Display_.MoveKey(stroke.Key, Motion::Release);
    for (const std::uint8_t held : stroke.Held)
        Display_.MoveKey(held, Motion::Release);
}

} // namespace Quillbox
