// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace Quillbox {

/// An error that the program does not expect where it happens: it ends the action under way.
/// Rules throw it, nobody in between catches it; the event boundary reports it, start-up reports it
/// and ends the program.
struct RuntimeError {
    int Number;   ///< the number that users know from the run-time's error messages
    QString Text; ///< Spanish sentence without the number and without a final full stop
};

/// 5: a length, a position or a value that the operation cannot take.
RuntimeError InvalidArgument();
/// 6: a number outside the range of its field.
RuntimeError Overflow();
/// 7: no memory is left for what was asked.
RuntimeError OutOfMemory();
/// 9: an index outside a fixed table.
RuntimeError SubscriptOutOfRange();
/// 53: a program or file that is not there.
RuntimeError FileNotFound();
/// 68: a drive that is not there or holds no medium.
RuntimeError DeviceUnavailable();
/// 70: the system refuses the operation.
RuntimeError PermissionDenied();
/// 75: a path that cannot be opened for what was asked.
RuntimeError PathAccessError();

/// What the person reads when `error` ends an action.
QString ErrorMessage(const RuntimeError &error);

} // namespace Quillbox
