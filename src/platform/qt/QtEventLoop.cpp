// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/qt/QtEventLoop.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QThread>

namespace Quillbox {

void QtEventLoop::ProcessPendingEvents() { QCoreApplication::processEvents(); }

void QtEventLoop::ProcessWindowEvents() {
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

void QtEventLoop::Yield() { QThread::yieldCurrentThread(); }

bool QtEventLoop::IsCtrlDown() {
    return QGuiApplication::queryKeyboardModifiers().testFlag(Qt::ControlModifier);
}

} // namespace Quillbox
