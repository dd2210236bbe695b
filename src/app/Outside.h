// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace Quillbox {

class ConsoleProcess;
class Dialogs;
class EventLoop;
class Files;
class Folders;
class PrivateProfile;
class Programs;

/// The system and the person, whom one program has once each: all that lies outside its windows.
struct Outside {
    QString AppDir; ///< the program folder with its separator
    Quillbox::Files &Files;
    PrivateProfile &Profile;
    ConsoleProcess &Console;
    Quillbox::Programs &Programs;
    Quillbox::Dialogs &Dialogs;
    EventLoop &Events;
    Quillbox::Folders &Folders;
};

} // namespace Quillbox
