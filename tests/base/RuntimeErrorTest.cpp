// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/RuntimeError.h"

#include "base/ResumeNext.h"
#include "fakes/CallLog.h"
#include "fakes/ErrorNumber.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace Quillbox {
namespace {

TEST(RuntimeError, CarriesTheNumberThatUsersKnow) {
    EXPECT_EQ(InvalidArgument().Number, 5);
    EXPECT_EQ(Overflow().Number, 6);
    EXPECT_EQ(SubscriptOutOfRange().Number, 9);
    EXPECT_EQ(FileNotFound().Number, 53);
    EXPECT_EQ(DeviceUnavailable().Number, 68);
    EXPECT_EQ(PermissionDenied().Number, 70);
    EXPECT_EQ(PathAccessError().Number, 75);
}

TEST(RuntimeError, IsShownWithNumberAndText) {
    EXPECT_EQ(ErrorMessage(SubscriptOutOfRange()),
              QString("Se ha producido el error 9 en tiempo de ejecución:\n\n"
                      "Subíndice fuera del intervalo."));
}

TEST(ResumeNext, RunsTheStepsBehindAFailedOne) {
    ResumeNext steps;
    int done = 0;

    steps.Try([&] { done += 1; });
    steps.Try([&] { throw Overflow(); });
    steps.Try([&] { done += 10; });

    EXPECT_EQ(done, 11);
}

TEST(ResumeNext, KeepsAnErrorPendingBehindLaterSteps) {
    ResumeNext steps;
    steps.Try([] {});
    EXPECT_FALSE(steps.IsErrorPending());

    steps.Try([] { throw InvalidArgument(); });
    steps.Try([] {});

    EXPECT_TRUE(steps.IsErrorPending());
}

TEST(ResumeNext, LetsOtherFailuresThrough) {
    ResumeNext steps;

    EXPECT_THROW(steps.Try([] { throw std::runtime_error("no memory"); }), std::runtime_error);
    EXPECT_FALSE(steps.IsErrorPending());
}

} // namespace
} // namespace Quillbox
