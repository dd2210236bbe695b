// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/Color.h"

#include <QString>

#include <optional>

namespace Quillbox {

enum class MessageIcon { None, Critical, Question, Exclamation, Information };
enum class MessageButtons { Ok, YesNo, YesNoCancel };
enum class MessageAnswer { Ok, Yes, No, Cancel };

struct Message {
    QString Text;
    QString Caption;
    MessageIcon Icon = MessageIcon::None;
    MessageButtons Buttons = MessageButtons::Ok;
};

/// What a file chooser insists on.
enum class FileChooserFlags {
    None = 0,            ///< takes any name, of an existing file or not
    OverwritePrompt = 2, ///< asks before an existing file is chosen for saving
    FileMustExist = 4096,
};

struct FileChooser {
    FileChooserFlags Flags;
    QString Filter;        ///< caption, "|", pattern: "Programas de Fenix (*.prg)|*.prg"
    QString FileName = {}; ///< proposed name, empty for none; of a full one its last part
    QString Title = {};    ///< empty for the chooser's own
    /// Where it starts, empty for where the last choice was. For a file's full name its folder; a
    /// folder that is not there counts as empty.
    QString Folder = {};
};

struct FontChoice {
    QString Name;
    double Size = 0; ///< in points
};

/// A box that asks for one line of text.
struct InputBox {
    QString Prompt;
    QString Title;
};

/// The questions that the program asks people.
class Dialogs {
  public:
    virtual ~Dialogs() = default;

    /// Closing the box without a button answers Cancel where there is one, else No or Ok.
    virtual MessageAnswer ShowMessage(const Message &message) = 0;
    /// The chosen full name; empty when the person cancels.
    virtual std::optional<QString> ShowOpen(const FileChooser &chooser) = 0;
    virtual std::optional<QString> ShowSave(const FileChooser &chooser) = 0;
    /// What the person typed, as a line of an ANSI file holds it (see OneAnsiLine), maybe nothing
    /// at all; empty when the person cancels.
    virtual std::optional<QString> ShowInput(const InputBox &box) = 0;
    /// The chosen colour, where `preset` is offered at first; empty when the person cancels.
    virtual std::optional<Color> ShowColor(Color preset) = 0;
    /// The chosen font of those that the screen has; empty when the person cancels.
    virtual std::optional<FontChoice> ShowFont(const FontChoice &preset) = 0;
};

} // namespace Quillbox
