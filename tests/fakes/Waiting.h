// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QCoreApplication>
#include <QEvent>
#include <QTest>

namespace Quillbox {

/// Bounds the wait for what never comes, also on a machine that is busy with other things. No test
/// passes because this time has gone by.
inline constexpr int PatienceMilliseconds = 60000;

/// Lets the event loop run until the condition holds; false when it never does.
template <typename Condition>
[[nodiscard]] bool WaitFor(Condition condition) {
    return QTest::qWaitFor(condition, PatienceMilliseconds);
}

/// Lets the event loop do what is due, and what becomes due by that, however long it takes.
inline void DoWhatIsDue() {
    for (int round = 0; round < 10; ++round) {
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
}

} // namespace Quillbox
