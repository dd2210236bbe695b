// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/EventBoundary.h"

#include "base/RuntimeError.h"
#include "surfaces/Dialogs.h"

#include <new>

namespace Quillbox {

EventBoundary::EventBoundary(Dialogs &dialogs)
    : Dialogs_(dialogs) {}

void EventBoundary::Run(const std::function<void()> &action) const {
    try {
        action();
    } catch (const RuntimeError &error) {
        Report(error);
    } catch (const std::bad_alloc &) {
        Report(OutOfMemory());
    }
}

void EventBoundary::Report(const RuntimeError &error) const {
    Dialogs_.ShowMessage({ErrorMessage(error), QStringLiteral("Quillbox"), MessageIcon::Critical});
}

} // namespace Quillbox
