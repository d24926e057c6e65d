#include "cli/Interrupt.h"

#include <QCoreApplication>

#include <gtest/gtest.h>

#include <csignal>
#include <unistd.h>

namespace {

// What a process does that is asked to end `times` times after its work is done.
[[noreturn]] void tidyUpBeing(int signal, int times) {
    char name[] = "test_cli";
    char *arguments[] = {name, nullptr};
    int count = 1;
    const QCoreApplication application(count, arguments);
    {
        const Interrupt interrupt;
    }
    for (int i = 0; i < times; ++i)
        raise(signal);
    _exit(0);
}

} // namespace

TEST(InterruptDeathTest, FinishedWorkStaysASuccess) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    EXPECT_EXIT(tidyUpBeing(SIGINT, 1), testing::ExitedWithCode(0), "");
    EXPECT_EXIT(tidyUpBeing(SIGTERM, 1), testing::ExitedWithCode(0), "");
    EXPECT_EXIT(tidyUpBeing(SIGINT, 2), testing::KilledBySignal(SIGINT), "");
}
