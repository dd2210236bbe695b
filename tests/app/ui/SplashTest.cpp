// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/ui/frmLogo.h"
#include "widgets/QtEventLoop.h"

#include <QElapsedTimer>
#include <QLabel>
#include <QTest>
#include <gtest/gtest.h>

namespace Quillbox {
namespace {

TEST(SplashWindow, HandsOverAfterOneIntervalAndGoesAfterTheNext) {
    QtEventLoop events;
    QElapsedTimer clock;
    clock.start();
    qint64 shownAfter = -1;
    frmLogo splash([&] { shownAfter = clock.elapsed(); }, events);
    splash.show();
    QTest::qWait(SplashMilliseconds / 2);
    EXPECT_EQ(shownAfter, -1);
    ASSERT_TRUE(QTest::qWaitFor([&] { return shownAfter >= 0; }));
    EXPECT_GE(shownAfter, SplashMilliseconds);
    EXPECT_TRUE(splash.isVisible());
    EXPECT_TRUE(QTest::qWaitFor([&] { return !splash.isVisible(); }));
    EXPECT_GE(clock.elapsed(), 2 * SplashMilliseconds);
}

TEST(SplashWindow, StandsInTheMiddleOfTheScreenWithPictureAndName) {
    QtEventLoop events;
    frmLogo splash([] {}, events);
    EXPECT_EQ(splash.geometry().center(), splash.screen()->geometry().center());
    EXPECT_FALSE(splash.findChild<QLabel *>(QStringLiteral("Picture1"))->pixmap().isNull());
    EXPECT_EQ(splash.findChild<QLabel *>(QStringLiteral("Label1"))->text(),
              QStringLiteral("Quillbox"));
}

} // namespace
} // namespace Quillbox
