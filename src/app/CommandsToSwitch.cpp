// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/CommandsToSwitch.h"

#include "app/Commands.h"

#include <map>

namespace Quillbox {
namespace {

/// By the number that orders them.
using OrderedNames = std::map<int, QString>;

bool NeedsDocument(const Command &command) { return command.Enabled.Needs == Needs::Document; }

OrderedNames WithDocument() {
    OrderedNames names;
    for (const Command &command : Commands())
        if (NeedsDocument(command))
            names[command.Enabled.Turn] = QString::fromUtf8(command.Name);
    return names;
}

OrderedNames ButtonsWithDocument() {
    OrderedNames tooltips;
    bool menuNeedsOne = false;
    for (const Command &command : Commands()) {
        if (command.IsMenu())
            menuNeedsOne = NeedsDocument(command);
        const bool needsOne = NeedsDocument(command) || (command.IsMenuItem() && menuNeedsOne);
        if (command.IsToolButton() && needsOne)
            tooltips[command.Button.Place] = QString::fromUtf8(command.Button.Tooltip);
    }
    return tooltips;
}

QStringList WithProject() {
    QStringList names;
    for (const Command &command : Commands())
        if (command.IsMenuItem() && command.Enabled.Needs == Needs::Project)
            names.append(QString::fromUtf8(command.Name));
    return names;
}

QStringList InOrder(const OrderedNames &names) {
    QStringList list;
    for (const auto &[number, name] : names)
        list.append(name);
    return list;
}

} // namespace

SwitchedCommands CommandsToSwitch() {
    return {InOrder(WithDocument()), InOrder(ButtonsWithDocument()), WithProject()};
}

} // namespace Quillbox
