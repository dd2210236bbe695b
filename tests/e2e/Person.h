// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QImage>
#include <QPoint>
#include <QSize>
#include <QString>
#include <QStringList>

#include <functional>

namespace Quillbox {

/// Long enough for a machine that is busy with other things; a wait ends as soon as it can.
inline constexpr int PatienceMilliseconds = 30000;

/// Lets time pass, a little at a time, until the condition holds; false when it never does.
bool WaitUntil(const std::function<bool()> &condition, int milliseconds = PatienceMilliseconds);

/// The regular expression of a window title that is exactly this text.
QString Exactly(const QString &title);

/// A person at the keyboard and mouse of the desktop. Windows are known by a regular expression
/// that finds their title; every wait ends after a while. What returns false could not be done.
class Person {
  public:
    /// The window's number, 0 when it does not come.
    qint64 WaitForWindow(const QString &title, int milliseconds = PatienceMilliseconds);
    bool WaitForNoWindow(const QString &title, int milliseconds = PatienceMilliseconds);
    bool IsWindowThere(const QString &title);
    /// For questions that have the title of the window that asks them.
    bool WaitForWindowCount(const QString &title, int count);
    /// A menu is a window without a title.
    bool WaitForMenu(int milliseconds = PatienceMilliseconds);
    bool WaitForNoMenu();
    /// The number of the process that shows the window, 0 without a window.
    qint64 ProcessOf(const QString &title);

    /// Waits for the window, gives it the keyboard and presses the keys: "ctrl+o", "Return".
    bool PressIn(const QString &title, const QStringList &keys);
    void Press(const QStringList &keys);
    /// Types on the keys of a Spanish keyboard; "\n" is the Return key.
    void Type(const QString &text);
    /// Puts a text on the clipboard and presses the keys that paste it.
    void Paste(const QString &text);
    /// Waits for a file chooser, gives it a file's name and presses Return.
    bool ChooseFile(const QString &title, const QString &path);

    /// Clicks at a place of the window, in pixels from its inner top left corner; a negative
    /// coordinate counts from the opposite edge. Button 1 is the left one, 3 the right one.
    bool ClickIn(const QString &title, QPoint place, int button = 1);

    /// Selects all in what has the keyboard and copies it; empty when nothing came.
    QString CopyAll();
    /// The text of a message box, selected with mouse and keyboard.
    QString ReadMessage(const QString &title);

    bool Screenshot(const QString &file);
    /// What the desktop shows where the window is, without its frame; a menu or a box in front of
    /// it is on the picture. Null without the window.
    QImage PictureOf(const QString &title);
    /// Makes the window that large inside.
    bool Resize(const QString &title, QSize size);
    /// Gives the program time to react.
    void Pause(int milliseconds = 300);

  private:
    QString Tool(const QStringList &arguments);
    QStringList FindWindows(const QString &title);
    qint64 FindWindow(const QString &title);
    bool IsMenuThere();
    QPoint SizeOf(qint64 window);
    /// Of its inside, on the desktop. Takes the pointer there.
    QPoint CornerOf(qint64 window);
    bool GiveKeyboard(qint64 window);
};

} // namespace Quillbox
