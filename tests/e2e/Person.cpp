// SPDX-License-Identifier: GPL-3.0-or-later
#include "Person.h"

#include <QClipboard>
#include <QDeadlineTimer>
#include <QGuiApplication>
#include <QPixmap>
#include <QProcess>
#include <QScreen>
#include <QThread>

#include <algorithm>

namespace Quillbox {
namespace {

constexpr int PollMilliseconds = 40;
constexpr int KeyMilliseconds = 40;

void PassTime(int milliseconds) {
    for (QDeadlineTimer deadline(milliseconds); !deadline.hasExpired();) {
        QGuiApplication::processEvents();
        QThread::msleep(10);
    }
}

/// The number behind a name in what the tool prints as lines "NAME=number".
int ValueIn(const QString &lines, const QString &name) {
    return (u'\n' + lines).section(u'\n' + name + u'=', 1, 1).section(u'\n', 0, 0).toInt();
}

} // namespace

bool WaitUntil(const std::function<bool()> &condition, int milliseconds) {
    for (QDeadlineTimer deadline(milliseconds); !condition(); PassTime(PollMilliseconds))
        if (deadline.hasExpired())
            return false;
    return true;
}

QString Exactly(const QString &title) {
    QString expression;
    for (const QChar character : title) {
        if (QStringLiteral("\\.[](){}*+?|^$").contains(character))
            expression += u'\\';
        expression += character;
    }
    return u'^' + expression + u'$';
}

qint64 Person::WaitForWindow(const QString &title, int milliseconds) {
    qint64 window = 0;
    WaitUntil([&] { return (window = FindWindow(title)) != 0; }, milliseconds);
    return window;
}

bool Person::WaitForNoWindow(const QString &title, int milliseconds) {
    return WaitUntil([&] { return FindWindow(title) == 0; }, milliseconds);
}

bool Person::IsWindowThere(const QString &title) { return FindWindow(title) != 0; }

bool Person::WaitForWindowCount(const QString &title, int count) {
    return WaitUntil([&] { return FindWindows(title).size() == count; });
}

bool Person::WaitForMenu(int milliseconds) {
    return WaitUntil([this] { return IsMenuThere(); }, milliseconds);
}

bool Person::WaitForNoMenu() {
    return WaitUntil([this] { return !IsMenuThere(); });
}

qint64 Person::ProcessOf(const QString &title) {
    const qint64 window = FindWindow(title);
    return window == 0
               ? 0
               : Tool({QStringLiteral("getwindowpid"), QString::number(window)}).toLongLong();
}

bool Person::PressIn(const QString &title, const QStringList &keys) {
    const qint64 window = WaitForWindow(title);
    if (window == 0 || !GiveKeyboard(window))
        return false;
    Press(keys);
    return true;
}

void Person::Press(const QStringList &keys) {
    for (const QString &key : keys) {
        Tool({QStringLiteral("key"), QStringLiteral("--clearmodifiers"), key});
        Pause(KeyMilliseconds);
    }
}

void Person::Type(const QString &text) {
    const QStringList lines = text.split(u'\n');
    for (qsizetype line = 0; line < lines.size(); ++line) {
        if (line > 0)
            Press({QStringLiteral("Return")});
        if (!lines[line].isEmpty())
            Tool({QStringLiteral("type"), QStringLiteral("--delay"), QStringLiteral("8"),
                  lines[line]});
    }
}

void Person::Paste(const QString &text) {
    QGuiApplication::clipboard()->setText(text);
    Pause(KeyMilliseconds);
    Press({QStringLiteral("ctrl+v")});
}

bool Person::ChooseFile(const QString &title, const QString &path) {
    if (!PressIn(title, {QStringLiteral("alt+n"), QStringLiteral("ctrl+a")}))
        return false;
    Paste(path);
    Press({QStringLiteral("Return")});
    return true;
}

bool Person::ClickIn(const QString &title, QPoint place, int button) {
    const qint64 window = WaitForWindow(title);
    if (window == 0)
        return false;
    const QPoint size = SizeOf(window);
    const int x = place.x() < 0 ? size.x() + place.x() : place.x();
    const int y = place.y() < 0 ? size.y() + place.y() : place.y();
    Tool({QStringLiteral("mousemove"), QStringLiteral("--window"), QString::number(window),
          QString::number(x), QString::number(y)});
    Pause(KeyMilliseconds);
    Tool({QStringLiteral("click"), QString::number(button)});
    Pause(KeyMilliseconds);
    return true;
}

QString Person::CopyAll() {
    QClipboard &clipboard = *QGuiApplication::clipboard();
    clipboard.clear();
    Pause(KeyMilliseconds);
    Press({QStringLiteral("ctrl+a"), QStringLiteral("ctrl+c")});
    WaitUntil([&] { return !clipboard.text().isEmpty(); }, 3000);
    return clipboard.text();
}

/// The text stands in the upper part of the box, to the right of its picture.
QString Person::ReadMessage(const QString &title) {
    const qint64 window = WaitForWindow(title);
    if (window == 0)
        return {};
    const QPoint size = SizeOf(window);
    ClickIn(title, QPoint(size.x() / 2, (size.y() - 40) / 2));
    return CopyAll();
}

bool Person::Screenshot(const QString &file) {
    Pause();
    return QGuiApplication::primaryScreen()->grabWindow(0).save(file);
}

QImage Person::PictureOf(const QString &title) {
    const qint64 window = FindWindow(title);
    if (window == 0)
        return {};
    const QPoint corner = CornerOf(window);
    const QPoint size = SizeOf(window);
    Pause();
    return QGuiApplication::primaryScreen()
        ->grabWindow(0, corner.x(), corner.y(), size.x(), size.y())
        .toImage();
}

bool Person::Resize(const QString &title, QSize size) {
    const qint64 window = WaitForWindow(title);
    if (window == 0)
        return false;
    Tool({QStringLiteral("windowsize"), QString::number(window), QString::number(size.width()),
          QString::number(size.height())});
    return WaitUntil([&] { return SizeOf(window) == QPoint(size.width(), size.height()); });
}

void Person::Pause(int milliseconds) { PassTime(milliseconds); }

QString Person::Tool(const QStringList &arguments) {
    QProcess tool;
    tool.setStandardErrorFile(QProcess::nullDevice());
    tool.start(QStringLiteral("xdotool"), arguments);
    if (!tool.waitForFinished(PatienceMilliseconds))
        tool.kill();
    return QString::fromUtf8(tool.readAllStandardOutput());
}

QStringList Person::FindWindows(const QString &title) {
    return Tool({QStringLiteral("search"), QStringLiteral("--onlyvisible"),
                 QStringLiteral("--name"), title})
        .split(u'\n', Qt::SkipEmptyParts);
}

qint64 Person::FindWindow(const QString &title) {
    const QStringList windows = FindWindows(title);
    return windows.isEmpty() ? 0 : windows.first().toLongLong();
}

bool Person::IsMenuThere() {
    const QStringList titled = FindWindows(QStringLiteral("."));
    const QStringList all = Tool({QStringLiteral("search"), QStringLiteral("--onlyvisible"),
                                  QStringLiteral("--class"), QStringLiteral("^quillbox$")})
                                .split(u'\n', Qt::SkipEmptyParts);
    return std::any_of(all.begin(), all.end(),
                       [&](const QString &window) { return !titled.contains(window); });
}

QPoint Person::SizeOf(qint64 window) {
    const QString geometry = Tool(
        {QStringLiteral("getwindowgeometry"), QStringLiteral("--shell"), QString::number(window)});
    return {ValueIn(geometry, QStringLiteral("WIDTH")),
            ValueIn(geometry, QStringLiteral("HEIGHT"))};
}

/// The pointer tells the place: what the tool says of a window's own place counts its frame twice.
QPoint Person::CornerOf(qint64 window) {
    Tool({QStringLiteral("mousemove"), QStringLiteral("--window"), QString::number(window),
          QStringLiteral("0"), QStringLiteral("0")});
    const QString place = Tool({QStringLiteral("getmouselocation"), QStringLiteral("--shell")});
    return {ValueIn(place, QStringLiteral("X")), ValueIn(place, QStringLiteral("Y"))};
}

/// A window that is just coming up may miss the first request.
bool Person::GiveKeyboard(qint64 window) {
    const QString number = QString::number(window);
    return WaitUntil([&] {
        const QString active = Tool({QStringLiteral("getactivewindow")}).trimmed();
        if (active != number)
            Tool({QStringLiteral("windowactivate"), number});
        return active == number;
    });
}

} // namespace Quillbox
