// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QRect>
#include <QString>
#include <QStringList>

namespace Quillbox {

/// A person at the keyboard and mouse of the desktop. Windows are known by a regular expression that finds their title;
/// every wait ends after some seconds.
class Person {
  public:
    /// The window's number, 0 when it does not come.
    qint64 WaitForWindow(const QString &title, int milliseconds = 20000);
    bool WaitForNoWindow(const QString &title, int milliseconds = 20000);
    bool IsWindowThere(const QString &title);
    /// Waits for the window, gives it the keyboard and presses the keys: "ctrl+o", "Return".
    bool PressIn(const QString &title, const QStringList &keys);
    void Press(const QStringList &keys);
    void Type(const QString &text);
    /// Waits for a file chooser and gives it a file's name.
    bool ChooseFile(const QString &title, const QString &path);
    /// Clicks at a place of the window, in pixels from its inner top left corner. Button 1 is left.
    bool ClickIn(const QString &title, QPoint place, int button = 1);
    /// Selects and copies what has the keyboard.
    QString CopyAll();
    bool Screenshot(const QString &file);
    /// Gives the program time to react.
    void Pause(int milliseconds = 300);

  private:
    QString Tool(const QStringList &arguments);
    qint64 FindWindow(const QString &title);
};

} // namespace Quillbox
