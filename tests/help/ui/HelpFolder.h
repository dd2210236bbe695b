// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "help/ui/HelpBrowser.h"

#include "fakes/Waiting.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QTest>
#include <gtest/gtest.h>

namespace Quillbox {

inline void WritePage(const QString &path, const QByteArray &content) {
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly)) << qPrintable(path);
    file.write(content);
}

/// The middle of the first place where the page says `text`.
inline QPoint PlaceOf(QTextBrowser &browser, const QString &text) {
    QTextCursor found = browser.document()->find(text);
    EXPECT_FALSE(found.isNull()) << qPrintable(text);
    QTextCursor start = found;
    start.setPosition(found.selectionStart());
    return (browser.cursorRect(start).center() + browser.cursorRect(found).center()) / 2;
}

inline void ClickOn(QTextBrowser &browser, const QString &text) {
    QTest::mouseClick(browser.viewport(), Qt::LeftButton, {}, PlaceOf(browser, text));
    DoWhatIsDue();
}

} // namespace Quillbox
