// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/qt/EventBoundary.h"

#include "platform/Dialogs.h"
#include "platform/RuntimeError.h"

namespace Quillbox {

EventBoundary::EventBoundary(Dialogs &dialogs)
    : Dialogs_(dialogs) {}

void EventBoundary::Run(const std::function<void()> &action) const {
    try {
        action();
    } catch (const RuntimeError &error) {
        Dialogs_.ShowMessage(
            {ErrorMessage(error), QStringLiteral("Quillbox"), MessageIcon::Critical});
    }
}

} // namespace Quillbox
