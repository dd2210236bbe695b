// SPDX-License-Identifier: GPL-3.0-or-later
#include "Person.h"

#include <QClipboard>
#include <QDeadlineTimer>
#include <QGuiApplication>
#include <QMimeData>
#include <QPixmap>
#include <QRegularExpression>
#include <QScreen>
#include <QThread>

#include <algorithm>
#include <memory>

namespace Quillbox {
namespace {

constexpr int PollMilliseconds = 10;

QImage PictureAt(QRect place) {
    return QGuiApplication::primaryScreen()
        ->grabWindow(0, place.x(), place.y(), place.width(), place.height())
        .toImage();
}

/// A text on the clipboard that knows whether somebody has taken it from there.
class WatchedText final : public QMimeData {
  public:
    explicit WatchedText(const QString &text) { setText(text); }

    std::shared_ptr<bool> Taken = std::make_shared<bool>(false); ///< outlives this object

  private:
    QVariant retrieveData(const QString &format, QMetaType type) const override {
        *Taken = true;
        return QMimeData::retrieveData(format, type);
    }
};

} // namespace

/// Meanwhile programs may ask this one for what it has put on the clipboard.
bool WaitUntil(const std::function<bool()> &condition) {
    for (QDeadlineTimer deadline(PatienceMilliseconds); !condition();) {
        if (deadline.hasExpired())
            return false;
        QThread::msleep(PollMilliseconds);
        QGuiApplication::processEvents();
    }
    return true;
}

QString Exactly(const QString &title) { return u'^' + QRegularExpression::escape(title) + u'$'; }

XWindow Person::WaitForWindow(const QString &title) {
    XWindow window = 0;
    WaitUntil([&] { return (window = FindWindow(title)) != 0; });
    return window;
}

bool Person::WaitForNoWindow(const QString &title) {
    return WaitUntil([&] { return FindWindow(title) == 0; });
}

bool Person::IsWindowThere(const QString &title) { return FindWindow(title) != 0; }

bool Person::WaitForWindowCount(const QString &title, int count) {
    return WaitUntil([&] { return static_cast<int>(FindWindows(title).size()) == count; });
}

bool Person::WaitForMenu() {
    return WaitUntil([this] { return IsMenuThere(); });
}

bool Person::WaitForNoMenu() {
    return WaitUntil([this] { return !IsMenuThere(); });
}

qint64 Person::ProcessOf(const QString &title) { return Display_.ProcessOf(FindWindow(title)); }

bool Person::PressIn(const QString &title, const QStringList &keys) {
    const XWindow window = WaitForWindow(title);
    if (window == 0 || !GiveKeyboard(window))
        return false;
    Press(keys);
    return true;
}

void Person::Press(const QStringList &keys) {
    WaitForKeyboard();
    Display_.ReleaseEveryKey();
    for (const QString &key : keys)
        Keyboard_.Press(key);
    Display_.Finish();
}

void Person::Type(const QString &text) {
    WaitForKeyboard();
    for (const QChar character : text) {
        if (character == u'\n')
            Keyboard_.Press(QStringLiteral("Return"));
        else if (!Keyboard_.Type(character))
            Paste(character);
    }
    Display_.Finish();
}

void Person::Paste(const QString &text) {
    auto *offered = new WatchedText(text);
    const std::shared_ptr<const bool> taken = offered->Taken;
    QGuiApplication::clipboard()->setMimeData(offered);
    Press({QStringLiteral("ctrl+v")});
    WaitUntil([&] { return *taken; });
    CatchUp(WaitForKeyboard());
}

bool Person::ChooseFile(const QString &title, const QString &path) {
    if (!PressIn(title, {QStringLiteral("alt+n"), QStringLiteral("ctrl+a")}))
        return false;
    Paste(path);
    Press({QStringLiteral("Return")});
    return true;
}

bool Person::ClickIn(const QString &title, QPoint place, int button) {
    const XWindow window = WaitForWindow(title);
    if (window == 0 || !GiveKeyboard(window))
        return false;
    const QRect inside = Display_.PlaceOf(window);
    const int x = place.x() < 0 ? inside.width() + place.x() : place.x();
    const int y = place.y() < 0 ? inside.height() + place.y() : place.y();
    Display_.MovePointer(inside.topLeft() + QPoint(x, y));
    if (!CatchUp(window))
        return false;
    for (const Motion motion : {Motion::Press, Motion::Release})
        Display_.MoveButton(static_cast<std::uint8_t>(button), motion);
    return CatchUp(window);
}

/// A program that has taken in the keys has also taken the clipboard, if it wanted to.
QString Person::CopyAll() {
    QClipboard &clipboard = *QGuiApplication::clipboard();
    clipboard.clear();
    Press({QStringLiteral("ctrl+a")});
    CatchUp(WaitForKeyboard());
    Press({QStringLiteral("ctrl+c")});
    QString text;
    if (CatchUp(WaitForKeyboard()))
        WaitUntil([&] {
            text = clipboard.text();
            return !text.isEmpty() || !Display_.HasClipboardOwner();
        });
    return text;
}

/// The text stands in the upper part of the box, to the right of its picture. A box that has just
/// come up may miss the click.
QString Person::ReadMessage(const QString &title) {
    const XWindow window = WaitForWindow(title);
    if (window == 0)
        return {};
    QString message;
    WaitUntil([&] {
        const QRect inside = Display_.PlaceOf(window);
        ClickIn(title, QPoint(inside.width() / 2, (inside.height() - 40) / 2));
        message = CopyAll();
        return !message.isEmpty();
    });
    return message;
}

bool Person::Screenshot(const QString &file) {
    const auto desktop = [] { return PictureAt(QRect(0, 0, -1, -1)); };
    return Settled(Display_.WindowWithKeyboard(), desktop).save(file);
}

QImage Person::PictureOf(const QString &title) {
    const XWindow window = FindWindow(title);
    if (window == 0)
        return {};
    Display_.MovePointer(Display_.PlaceOf(window).topLeft());
    return Settled(window, [&] { return PictureAt(Display_.PlaceOf(window)); });
}

bool Person::Resize(const QString &title, QSize size) {
    const XWindow window = WaitForWindow(title);
    if (window == 0)
        return false;
    Display_.Resize(window, size);
    return WaitUntil([&] { return Display_.PlaceOf(window).size() == size; });
}

std::vector<VisibleWindow> Person::FindWindows(const QString &title) {
    const QRegularExpression expression(title);
    std::vector<VisibleWindow> windows = Display_.VisibleWindows();
    const auto isAnother = [&](const VisibleWindow &window) {
        return window.IsPopup || !expression.match(window.Title).hasMatch();
    };
    windows.erase(std::remove_if(windows.begin(), windows.end(), isAnother), windows.end());
    return windows;
}

XWindow Person::FindWindow(const QString &title) {
    const std::vector<VisibleWindow> windows = FindWindows(title);
    return windows.empty() ? 0 : windows.front().Number;
}

bool Person::IsMenuThere() {
    const std::vector<VisibleWindow> windows = Display_.VisibleWindows();
    return std::any_of(windows.begin(), windows.end(), [](const VisibleWindow &window) {
        return window.IsPopup && window.Program == "quillbox";
    });
}

/// A window that is just coming up may miss the first request.
bool Person::GiveKeyboard(XWindow window) {
    return WaitUntil([&] {
               if (Display_.WindowWithKeyboard() == window)
                   return true;
               Display_.Activate(window);
               return false;
           }) &&
           CatchUp(window);
}

/// The window that has the keyboard. After a window has gone nobody has it for a moment.
XWindow Person::WaitForKeyboard() {
    XWindow window = 0;
    WaitUntil([&] { return (window = Display_.WindowWithKeyboard()) != 0; });
    return window;
}

/// Waits until the window's program has done what it was told to do: when it gives the first sign
/// of life it has received every key, at the second one it has obeyed, at the third one it has
/// shown the outcome. A window that goes has obeyed, too.
bool Person::CatchUp(XWindow window) {
    const auto answers = [&] {
        Display_.Ping(window);
        return WaitUntil([&] { return Display_.IsPingAnswered() || !Display_.IsVisible(window); });
    };
    return answers() && answers() && answers();
}

/// What there is to see once it stays the same while the program does what is left to do.
QImage Person::Settled(XWindow window, const std::function<QImage()> &look) {
    QImage before;
    QImage now;
    WaitUntil([&] {
        CatchUp(window);
        before = now;
        now = look();
        return now == before;
    });
    return now;
}

} // namespace Quillbox
