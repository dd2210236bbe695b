// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace Quillbox {

struct Rules;

/// What happens before the first document can be opened, in its fixed order. `appDir` is the
/// program folder with its separator. A run-time error ends the program: more than 600 words, or a
/// number in the settings file that its field cannot hold.
void StartUp(Rules &rules, const QString &appDir);

} // namespace Quillbox
