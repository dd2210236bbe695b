// SPDX-License-Identifier: GPL-3.0-or-later
// The tests of the real program share one virtual desktop for the whole process.
#include "Desktop.h"

#include <gtest/gtest.h>

#include <QGuiApplication>

#include <cstdio>

int main(int argc, char *argv[]) {
    testing::InitGoogleTest(&argc, argv);
    if (testing::GTEST_FLAG(list_tests))
        return RUN_ALL_TESTS();
    const Quillbox::Desktop desktop;
    if (!desktop.IsRunning()) {
        std::puts("The virtual desktop does not start.");
        return 1;
    }
    const QGuiApplication application(argc, argv);
    const int result = RUN_ALL_TESTS();
    // A filter that finds nothing would otherwise count as passed.
    return testing::UnitTest::GetInstance()->test_to_run_count() == 0 ? 1 : result;
}
