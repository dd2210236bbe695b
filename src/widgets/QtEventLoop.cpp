// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/QtEventLoop.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QThread>

namespace Quillbox {

void QtEventLoop::ProcessPendingEvents() { QCoreApplication::processEvents(); }

void QtEventLoop::ProcessWindowEvents() {
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

void QtEventLoop::GiveWay() {
    if (++Calls_ % 64 != 0 || (SinceYield_.isValid() && SinceYield_.elapsed() < 1))
        return;
    QThread::yieldCurrentThread();
    SinceYield_.start();
}

bool QtEventLoop::IsCtrlDown() {
    return QGuiApplication::queryKeyboardModifiers().testFlag(Qt::ControlModifier);
}

} // namespace Quillbox
