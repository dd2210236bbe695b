// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "XDisplay.h"
#include "XKeyboard.h"

#include <QImage>
#include <QPoint>
#include <QRect>
#include <QSize>
#include <QString>
#include <QStringList>

#include <functional>

namespace Quillbox {

/// Long enough for a machine that is busy with other things; a wait ends as soon as it can.
inline constexpr int PatienceMilliseconds = 60000;

/// Lets time pass, a little at a time, until the condition holds; false when it never does.
bool WaitUntil(const std::function<bool()> &condition);

/// The regular expression of a window title that is exactly this text.
QString Exactly(const QString &title);

/// A person at the keyboard and mouse of the desktop. Windows are known by a regular expression
/// that finds their title; every wait ends after a while. What returns false could not be done.
class Person {
  public:
    /// The window's number, 0 when it does not come.
    XWindow WaitForWindow(const QString &title);
    bool WaitForNoWindow(const QString &title);
    bool IsWindowThere(const QString &title);
    /// For questions that have the title of the window that asks them.
    bool WaitForWindowCount(const QString &title, int count);
    /// A menu, or the list of words that complete another one.
    bool WaitForMenu();
    bool WaitForNoMenu();
    /// The number of the process that shows the window, 0 without a window.
    qint64 ProcessOf(const QString &title);

    /// Waits for the window, gives it the keyboard and presses the keys: "ctrl+o", "Return".
    bool PressIn(const QString &title, const QStringList &keys);
    /// Presses the keys in the window that has the keyboard, whether its program listens or not.
    void Press(const QStringList &keys);
    /// Types on the keyboard; "\n" is the Return key. What is not on the keyboard is pasted.
    void Type(const QString &text);
    /// Puts a text on the clipboard and presses the keys that paste it.
    void Paste(const QString &text);
    /// Waits for a file chooser, gives it a file's name and presses Return.
    bool ChooseFile(const QString &title, const QString &path);

    /// Waits for the window, gives it the keyboard and clicks at a place of it, in pixels from its
    /// inner top left corner; a negative coordinate counts from the opposite edge. Button 1 is the
    /// left one, 3 the right one.
    bool ClickIn(const QString &title, QPoint place, int button = 1);

    /// Selects all in what has the keyboard and copies it; empty when nothing was copied.
    QString CopyAll();
    /// The text of a message box, selected with mouse and keyboard.
    QString ReadMessage(const QString &title);

    /// Keeps what the desktop shows in a file, once the program has done what it was told to.
    bool Screenshot(const QString &file);
    /// What the desktop shows where the window is, without its frame, once the program has done
    /// what it was told to; a menu or a box in front of it is on the picture. Null without the
    /// window. Takes the pointer to the window's corner, out of the way.
    QImage PictureOf(const QString &title);
    /// Makes the window that large inside.
    bool Resize(const QString &title, QSize size);

  private:
    std::vector<VisibleWindow> FindWindows(const QString &title);
    XWindow FindWindow(const QString &title);
    bool IsMenuThere();
    bool GiveKeyboard(XWindow window);
    XWindow WaitForKeyboard();
    bool CatchUp(XWindow window);
    QImage Settled(XWindow window, const std::function<QImage()> &look);

    XDisplay Display_;
    XKeyboard Keyboard_{Display_};
};

} // namespace Quillbox
