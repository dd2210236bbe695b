// SPDX-License-Identifier: GPL-3.0-or-later
#include "Person.h"

#include <QClipboard>
#include <QDeadlineTimer>
#include <QGuiApplication>
#include <QPixmap>
#include <QProcess>
#include <QScreen>
#include <QThread>

namespace Quillbox {
namespace {

constexpr int PollMilliseconds = 50;

} // namespace

qint64 Person::WaitForWindow(const QString &title, int milliseconds) {
    for (QDeadlineTimer deadline(milliseconds); !deadline.hasExpired(); Pause(PollMilliseconds))
        if (const qint64 window = FindWindow(title))
            return window;
    return 0;
}

bool Person::WaitForNoWindow(const QString &title, int milliseconds) {
    for (QDeadlineTimer deadline(milliseconds); !deadline.hasExpired(); Pause(PollMilliseconds))
        if (FindWindow(title) == 0)
            return true;
    return false;
}

bool Person::IsWindowThere(const QString &title) { return FindWindow(title) != 0; }

bool Person::PressIn(const QString &title, const QStringList &keys) {
    const qint64 window = WaitForWindow(title);
    if (window == 0)
        return false;
    Tool({QStringLiteral("windowactivate"), QStringLiteral("--sync"), QString::number(window)});
    Press(keys);
    return true;
}

void Person::Press(const QStringList &keys) {
    for (const QString &key : keys) {
        Tool({QStringLiteral("key"), QStringLiteral("--clearmodifiers"), key});
        Pause(120);
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
    Pause();
}

bool Person::ChooseFile(const QString &title, const QString &path) {
    if (!PressIn(title, {QStringLiteral("alt+n"), QStringLiteral("ctrl+a")}))
        return false;
    Type(path);
    Press({QStringLiteral("Return")});
    return true;
}

bool Person::ClickIn(const QString &title, QPoint place, int button) {
    const qint64 window = WaitForWindow(title);
    if (window == 0)
        return false;
    Tool({QStringLiteral("mousemove"), QStringLiteral("--sync"), QStringLiteral("--window"),
          QString::number(window), QString::number(place.x()), QString::number(place.y())});
    Tool({QStringLiteral("click"), QString::number(button)});
    Pause();
    return true;
}

QString Person::CopyAll() {
    QGuiApplication::clipboard()->clear();
    Press({QStringLiteral("ctrl+a"), QStringLiteral("ctrl+c")});
    Pause();
    return QGuiApplication::clipboard()->text();
}

bool Person::Screenshot(const QString &file) {
    Pause();
    return QGuiApplication::primaryScreen()->grabWindow(0).save(file);
}

void Person::Pause(int milliseconds) {
    for (QDeadlineTimer deadline(milliseconds); !deadline.hasExpired();) {
        QGuiApplication::processEvents();
        QThread::msleep(10);
    }
}

QString Person::Tool(const QStringList &arguments) {
    QProcess tool;
    tool.setStandardErrorFile(QProcess::nullDevice());
    tool.start(QStringLiteral("xdotool"), arguments);
    if (!tool.waitForFinished(20000))
        tool.kill();
    return QString::fromUtf8(tool.readAllStandardOutput());
}

qint64 Person::FindWindow(const QString &title) {
    const QString windows =
        Tool({QStringLiteral("search"), QStringLiteral("--onlyvisible"), QStringLiteral("--name"),
              title});
    return windows.section(u'\n', 0, 0).toLongLong();
}

} // namespace Quillbox
