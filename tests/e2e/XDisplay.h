// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QPoint>
#include <QRect>
#include <QSize>
#include <QString>

#include <cstdint>
#include <map>
#include <string>
#include <vector>

struct xcb_connection_t;

namespace Quillbox {

/// The number of a window; 0 is none.
using XWindow = std::uint32_t;

struct VisibleWindow {
    XWindow Number;
    QString Title;      ///< empty without one
    QByteArray Program; ///< its name, as the program gives it
    bool IsPopup;       ///< a menu or a list, which the window manager leaves alone
};

enum class Motion { Press, Release };

/// A client of the X display that DISPLAY names. It looks at windows from outside and moves the
/// keys and the mouse of the display itself. A window can go at any moment: what is asked of one
/// that has gone is empty or 0.
class XDisplay {
  public:
    XDisplay();
    ~XDisplay();
    XDisplay(const XDisplay &) = delete;
    XDisplay &operator=(const XDisplay &) = delete;

    /// True once a window manager is at work.
    bool HasWindowManager();
    /// The windows that can be seen, wherever the window manager has put them.
    std::vector<VisibleWindow> VisibleWindows();
    bool IsVisible(XWindow window);
    /// Of its inside, on the desktop, in pixels.
    QRect PlaceOf(XWindow window);
    /// The number of the process that shows it.
    qint64 ProcessOf(XWindow window);
    void Resize(XWindow window, QSize size);

    /// Asks the window manager to give the window the keyboard.
    void Activate(XWindow window);
    /// None while the keyboard is on its way from one window to the next.
    XWindow WindowWithKeyboard();

    /// Asks the window's program for a sign of life, which it gives when it has taken in all that
    /// happened before.
    void Ping(XWindow window);
    /// True once the last one was answered.
    bool IsPingAnswered();

    /// What each key means: for every code from `FirstKeyCode` on, `SymbolsPerKey` symbols.
    struct KeyMap {
        std::uint8_t FirstKeyCode = 0;
        std::size_t SymbolsPerKey = 1;
        std::vector<std::uint32_t> Symbols;
    };
    KeyMap ReadKeyMap();
    void MoveKey(std::uint8_t keyCode, Motion motion);
    /// Whatever held it down.
    void ReleaseEveryKey();
    void MovePointer(QPoint place);
    void MoveButton(std::uint8_t button, Motion motion);
    /// Returns when the display has done what it was told to.
    void Finish();

    /// True while a program offers something on the clipboard.
    bool HasClipboardOwner();

  private:
    XWindow Atom(const std::string &name);
    std::vector<XWindow> AllWindows();
    void SendToWindow(XWindow target, std::uint32_t mask, XWindow window, const std::string &type,
                      const std::uint32_t (&values)[3]);
    void Input(std::uint8_t type, std::uint8_t detail, QPoint place = {});
    std::uint32_t NumberIn(XWindow window, const std::string &property);

    xcb_connection_t *Connection_;
    XWindow Root_ = 0;
    std::map<std::string, XWindow> Atoms_;
    std::uint32_t LastPing_ = 0;
    bool IsPingAnswered_ = false;
};

} // namespace Quillbox
