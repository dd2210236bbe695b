// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/Splash.h"

#include "fakes/ErrorNumber.h"
#include "fakes/FakeSystem.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace Quillbox {
namespace {

using testing::ElementsAre;

class SplashHandOver : public testing::Test {
  protected:
    CallLog Log;
    FakeEventLoop Events{Log};
    Splash Window{[this] { Log.Add("ShowMainWindow"); }, [this] { Log.Add("ShowSplash"); },
                  [this] { Log.Add("CloseSplash"); }, Events};
};

TEST_F(SplashHandOver, BringsUpTheMainWindowBehindItselfOnTheFirstTick) {
    Window.tmrTimer_Timer();

    EXPECT_THAT(Log.Calls(),
                ElementsAre("ShowMainWindow", "events.ProcessPendingEvents", "ShowSplash"));
    EXPECT_TRUE(Window.MainShown);
}

TEST_F(SplashHandOver, RemembersTheMainWindowOnlyWhenItIsInFrontAgain) {
    Window.ShowSplash = [this] { EXPECT_FALSE(Window.MainShown); };

    Window.tmrTimer_Timer();

    EXPECT_TRUE(Window.MainShown);
}

TEST_F(SplashHandOver, ClosesOnTheNextTick) {
    Window.tmrTimer_Timer();
    Log.Clear();

    Window.tmrTimer_Timer();

    EXPECT_THAT(Log.Calls(), ElementsAre("CloseSplash"));
}

TEST_F(SplashHandOver, StopsWhereTheStartUpFails) {
    Window.ShowMainWindow = [] { throw Overflow(); };

    EXPECT_EQ(ErrorNumberOf([this] { Window.tmrTimer_Timer(); }), 6);

    EXPECT_THAT(Log.Calls(), ElementsAre());
    EXPECT_FALSE(Window.MainShown);
}

TEST_F(SplashHandOver, WaitsOneAndAHalfSeconds) { EXPECT_EQ(SplashMilliseconds, 1500); }

} // namespace
} // namespace Quillbox
